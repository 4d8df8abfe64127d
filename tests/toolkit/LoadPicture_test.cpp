#include "toolkit/LoadPicture.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QtEndian>

#include "shared/Files.h"

namespace {

QByteArray Encoded(QSize size, const char *type) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  QBuffer buffer;
  EXPECT_TRUE(picture.save(&buffer, type));
  return buffer.data();
}

template <class Number>
QByteArray Little(Number number) {
  number = qToLittleEndian(number);
  return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
}

// An icon (type 1) or cursor (type 2) of square pictures.
QByteArray Icon(quint16 type, std::initializer_list<int> sizes) {
  QByteArray directory = Little<quint16>(0) + Little(type) + Little(quint16(sizes.size()));
  QByteArray pictures;
  for (const int size : sizes) {
    const QByteArray png = Encoded({size, size}, "PNG");
    directory += QByteArray(2, char(size)) + QByteArray(2, 0) + Little<quint16>(1) +
                 Little<quint16>(32) + Little(quint32(png.size())) +
                 Little(quint32(6 + 16 * sizes.size() + pictures.size()));
    pictures += png;
  }
  return directory + pictures;
}

// With a mark that asks for a quarter turn.
QByteArray TurnedJpeg(QSize size) {
  const QByteArray tiff = QByteArray("II*\0\10\0\0\0\1\0", 10) + Little<quint16>(0x112) +
                          Little<quint16>(3) + Little<quint32>(1) + Little<quint32>(6) +
                          Little<quint32>(0);
  const QByteArray mark =
      QByteArray("\xFF\xE1\0", 3) + char(8 + tiff.size()) + QByteArray("Exif\0\0", 6) + tiff;
  return Encoded(size, "JPG").insert(2, mark);
}

QByteArray BmpHeader(quint32 side) {
  return "BM" + Little<quint32>(54) + Little<quint32>(0) + Little<quint32>(54) +
         Little<quint32>(40) + Little(side) + Little(side) + Little<quint16>(1) +
         Little<quint16>(24) + QByteArray(24, 0);
}

TEST(LoadPictureTest, TellsThePictureByItsContent) {
  const QTemporaryDir folder;
  const QByteArray gif = QByteArray::fromHex(
      "47494638396102000300800000ff00000000ff"  // 2 by 3, two colours
      "2c0000000002000300000203840f0500"        // the whole picture
      "2c000000000100010000020244010000"
      "3b");
  struct Case {
    const char *name;
    QByteArray bytes;
    QSize size;
  };
  for (const auto &[name, bytes, size] : {
           Case{"a.png", Encoded({7, 5}, "PNG"), {7, 5}},
           {"wrong.ending", Encoded({7, 5}, "BMP"), {7, 5}},
           {"a@2x.png", Encoded({8, 6}, "PNG"), {8, 6}},
           {"a.gif", gif, {2, 3}},
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
  }
  EXPECT_FALSE(LoadPicture(folder.path()));
  EXPECT_FALSE(LoadPicture(folder.filePath(QStringLiteral("missing.png"))));
  EXPECT_FALSE(LoadPicture({}));
}

}  // namespace
