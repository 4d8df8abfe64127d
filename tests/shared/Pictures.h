#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QtEndian>

// Small picture files of many kinds, as bytes.

inline QByteArray Encoded(QSize size, const char *type,
                          QImage::Format format = QImage::Format_RGB32) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  QBuffer buffer;
  EXPECT_TRUE(picture.convertToFormat(format).save(&buffer, type));
  return buffer.data();
}

template <class Number>
QByteArray Little(Number number) {
  number = qToLittleEndian(number);
  return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
}

// An icon (type 1) or cursor (type 2) of square pictures.
inline QByteArray Icon(quint16 type, std::initializer_list<int> sizes) {
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
inline QByteArray TurnedJpeg(QSize size) {
  const QByteArray tiff = QByteArray("II*\0\10\0\0\0\1\0", 10) + Little<quint16>(0x112) +
                          Little<quint16>(3) + Little<quint32>(1) + Little<quint32>(6) +
                          Little<quint32>(0);
  const QByteArray mark =
      QByteArray("\xFF\xE1\0", 3) + char(8 + tiff.size()) + QByteArray("Exif\0\0", 6) + tiff;
  return Encoded(size, "JPG").insert(2, mark);
}

inline QByteArray BmpHeader(quint32 side) {
  return "BM" + Little<quint32>(54) + Little<quint32>(0) + Little<quint32>(54) +
         Little<quint32>(40) + Little(side) + Little(side) + Little<quint16>(1) +
         Little<quint16>(24) + QByteArray(24, 0);
}

// Four inks, 8 by 6.
inline QByteArray CmykJpeg() {
  return QByteArray::fromHex(
      "ffd8ffee000e41646f626500640000000002ffdb004300281c1e231e1928"
      "2321232d2b28303c64413c37373c7b585d4964918099968f808c8aa0b4e6"
      "c3a0aadaad8a8cc8ffcbdaeef5ffffff9bc1fffffffaffe6fdfff8ffdb00"
      "43012b2d2d3c353c76414176f8a58ca5f8f8f8f8f8f8f8f8f8f8f8f8f8f8"
      "f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8f8"
      "f8f8f8f8f8f8ffc00014080006000804012200021101031101042200ffc4"
      "00160001010100000000000000000000000000000405ffc4001410010000"
      "0000000000000000000000000000ffc40015010101000000000000000000"
      "00000000000405ffc40014110100000000000000000000000000000000ff"
      "da000e040100021103110400003f00a80211db203fffd9");
}

// Two frames of two colours; the first one is 2 by 3.
inline QByteArray AnimatedGif() {
  return QByteArray::fromHex(
      "47494638396102000300800000ff00000000ff"
      "2c0000000002000300000203840f0500"
      "2c000000000100010000020244010000"
      "3b");
}

// A black square of half a drawing's width on it, without a header for placing it or with one of so
// many units to the inch.
inline QByteArray Metafile(qint16 side, quint16 unitsPerInch = 0) {
  QByteArray header;
  if (unitsPerInch > 0) {
    header = QByteArray("\xD7\xCD\xC6\x9A\0\0\0\0\0\0", 10) + Little(side) + Little(side) +
             Little(unitsPerInch) + Little<quint32>(0);
    quint16 sum = 0;
    for (int at = 0; at < 20; at += 2) sum ^= qFromLittleEndian<quint16>(header.constData() + at);
    header += Little(sum);
  }
  const auto record = [](quint16 function, std::initializer_list<int> words) {
    QByteArray bytes = Little(quint32(3 + words.size())) + Little(function);
    for (const int word : words) bytes += Little(qint16(word));
    return bytes;
  };
  const QByteArray records = record(0x020B, {0, 0}) + record(0x020C, {side, side}) +
                             record(0x02FC, {0, 0, 0, 0}) + record(0x012D, {0}) +
                             record(0x041B, {side / 2, side / 2, 0, 0}) + record(0, {});
  return header + Little<quint16>(1) + Little<quint16>(9) + Little<quint16>(0x300) +
         Little(quint32(9 + records.size() / 2)) + Little<quint16>(1) + Little<quint32>(7) +
         Little<quint16>(0) + records;
}
