#include "toolkit/LoadPicture.h"

#include <QFileInfo>
#include <QImageReader>
#include <utility>

namespace {

constexpr int largestPicture = 1024;  // megabytes, four bytes a pixel

// An icon's directory has one byte for a measure and writes 256 as 0.
int Area(const QSize &size) {
  const auto measure = [](int entry) { return entry > 0 ? entry : 256; };
  return measure(size.width()) * measure(size.height());
}

void GoToLargestImage(QImageReader &reader) {
  std::pair<int, int> largest{0, 0};  // area, number
  const int count = reader.imageCount();
  for (int i = 0; i < count && reader.jumpToImage(i); ++i) {
    const int area = Area(reader.size());
    if (area > largest.first) largest = {area, i};
  }
  reader.jumpToImage(largest.second);
}

}  // namespace

std::optional<QImage> LoadPicture(const QString &path) {
  if (!QFileInfo(path).isFile()) return {};  // a pipe would never end
  QImageReader::setAllocationLimit(largestPicture);
  QImageReader reader(path);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  if (const QByteArray type = reader.format(); type == "ico" || type == "cur")
    GoToLargestImage(reader);
  QImage picture = reader.read();
  if (picture.isNull()) return {};
  picture.setDevicePixelRatio(1);  // a name that ends with "@2x" would halve its measures
  return picture;
}

QString PictureFilter() {
  return QStringLiteral(
      "Pictures|*.bmp;*.gif;*.jpg;*.jpeg;*.jif;*.png;*.ico;*.cur|All files *.*|*.*");
}
