#include "toolkit/LoadPicture.h"

#include <QTemporaryDir>

#include "shared/Files.h"
#include "shared/Pictures.h"

namespace {

TEST(LoadPictureTest, TellsThePictureByItsContent) {
  const QTemporaryDir folder;
  struct Case {
    const char *name;
    QByteArray bytes;
    QSize size;
  };
  for (const auto &[name, bytes, size] : {
           Case{"a.png", Encoded({7, 5}, "PNG"), {7, 5}},
           {"wrong.ending", Encoded({7, 5}, "BMP"), {7, 5}},
           {"a@2x.png", Encoded({8, 6}, "PNG"), {8, 6}},
           {"a.gif", AnimatedGif(), {2, 3}},
           {"cmyk.jpg", CmykJpeg(), {8, 6}},
           {"half.jpg", Encoded({70, 50}, "JPG").chopped(10), {70, 50}},
           {"mono.bmp", Encoded({9, 5}, "BMP", QImage::Format_Mono), {9, 5}},
           {"deep.png", Encoded({9, 5}, "PNG", QImage::Format_RGBA64), {9, 5}},
           {"a.wmf", Metafile(2880, 1440), {192, 192}},
           {"plain.wmf", Metafile(1000), {480, 480}},
           {"cut.wmf", Metafile(1000, 1440).first(30), {}},
           {"huge.wmf", Metafile(32000, 1), {}},
           {"a.ico", Icon(1, {16, 48, 32}), {48, 48}},
           {"large.png", Icon(1, {16, 256, 128}), {256, 256}},
           {"a.cur", Icon(2, {16, 32}), {32, 32}},
           {"a.jpg", TurnedJpeg({7, 5}), {5, 7}},
           {"long.png", Encoded({1, 20000}, "PNG"), {1, 20000}},
           {"huge.bmp", BmpHeader(60000), {}},
           {"cut.png", Encoded({70, 50}, "PNG").first(60), {}},
           {"cut.ico", Icon(1, {16, 32}).first(20), {}},
           {"text.png", "no picture", {}},
           {"empty.png", "", {}},
       }) {
    const QString path = folder.filePath(QLatin1String(name));
    PutFile(path, bytes);
    const auto picture = LoadPicture(path);
    EXPECT_EQ(picture.has_value(), size.isValid()) << name;
    if (picture) {
      EXPECT_EQ(picture->deviceIndependentSize().toSize(), size) << name;
    }
    const auto scaled = LoadScaledPicture(path, [](QSize whole) { return whole / 2; });
    ASSERT_EQ(scaled.has_value(), size.isValid()) << name;
    if (!scaled) continue;
    EXPECT_EQ(scaled->size, size) << name;
    EXPECT_EQ(scaled->picture.size(), size / 2) << name;
  }
  EXPECT_FALSE(LoadPicture(folder.path()));
  EXPECT_FALSE(LoadPicture(folder.filePath(QStringLiteral("missing.png"))));
  EXPECT_FALSE(LoadPicture({}));
}

TEST(LoadPictureTest, DrawsMetafiles) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("-a b.wmf"));
  PutFile(path, Metafile(2880, 1440));
  const auto picture = LoadPicture(path);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->pixelColor(20, 20), QColor(Qt::black));
  EXPECT_EQ(picture->pixelColor(150, 150), QColor(Qt::white));
}

}  // namespace
