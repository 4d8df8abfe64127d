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
           {"a@2x.png", Encoded({8, 6}, "PNG"), {8, 6}},
           {"a.gif", AnimatedGif(), {2, 3}},
           {"cmyk.jpg", CmykJpeg(), {8, 6}},
           {"half.jpg", Encoded({70, 50}, "JPG").chopped(10), {70, 50}},
           {"a.wmf", Metafile(2880, 1440), {192, 192}},
           {"plain.wmf", Metafile(1000), {480, 480}},
           {"cut.wmf", Metafile(1000, 1440).first(30), {}},
           {"huge.wmf", Metafile(32000, 1), {}},
           {"a.ico", Icon(1, {16, 256, 128}), {256, 256}},
           {"a.cur", Icon(2, {16, 32}), {32, 32}},
           {"a.jpg", TurnedJpeg({7, 5}), {5, 7}},
           {"huge.bmp", BmpHeader(60000), {}},
           {"cut.png", Encoded({70, 50}, "PNG").first(60), {}},
           {"cut.ico", Icon(1, {16, 32}).first(20), {}},
           {"empty.png", "", {}},
       }) {
    const QString path = folder.filePath(QLatin1String(name));
    PutFile(path, bytes);
    const auto picture = LoadPicture(path);
    const auto scaled = LoadScaledPicture(path, [](QSize whole) { return whole / 2; });
    ASSERT_TRUE(picture.has_value() == size.isValid() && scaled.has_value() == size.isValid())
        << name;
    if (!picture) continue;
    EXPECT_EQ(picture->deviceIndependentSize().toSize(), size) << name;
    EXPECT_EQ(scaled->size, size) << name;
    EXPECT_EQ(scaled->picture.size(), size / 2) << name;
  }
  EXPECT_FALSE(LoadPicture(folder.path()));
  const QString drawing = folder.filePath(QStringLiteral("-a b.wmf"));
  PutFile(drawing, Metafile(2880, 1440));
  EXPECT_EQ(LoadPicture(drawing).value().pixelColor(20, 20), QColor(Qt::black));
  EXPECT_EQ(LoadPicture(drawing).value().pixelColor(150, 150), QColor(Qt::white));
}

}  // namespace
