#include "images/ThumbnailGrid.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<int, 4> sides{50, 75, 150, 300};  // 750, 1125, 2250, 4500 twips
constexpr double spareHeight = 2500 / 15.0;            // twips to the pixel

int Side(int index) {
  return index >= 0 && index < int(sides.size()) ? sides[index] : sides[0];
}

QSize Scaled(QSize picture, double scale) {
  return {std::max(1, int(picture.width() * scale)), std::max(1, int(picture.height() * scale))};
}

double LargestScale(QSize picture, QSize room) {
  return std::min(double(room.width()) / picture.width(), double(room.height()) / picture.height());
}

}  // namespace

ThumbnailGrid ThumbnailGrid::For(int heightIndex, int widthIndex, int canvasWidth) {
  const QSize cell(Side(widthIndex), Side(heightIndex));
  return {cell, std::max(1, canvasWidth / (cell.width() + Gap))};
}

int ThumbnailGrid::CanvasHeight(int files) const {
  return int(double(files) / columns * RowHeight() + spareHeight);
}

QRect ThumbnailGrid::Cell(int index) const {
  const QPoint origin(index % columns * (cell.width() + Gap) + Gap,
                      index / columns * RowHeight() + Gap);
  return {origin, cell};
}

int ThumbnailGrid::IndexAt(QPoint point) const {
  if (point.x() < 0 || point.y() < 0) return -1;
  const int column = point.x() / (cell.width() + Gap);
  const int index = point.y() / RowHeight() * columns + column;
  return column < columns && Cell(index).contains(point) ? index : -1;
}

QSize FitThumbnail(QSize picture, QSize cell, QSize room) {
  if (picture.isEmpty()) return {};
  const bool wide = picture.width() > picture.height();
  const double told =
      wide ? cell.height() * 0.6 / picture.height() : cell.width() * 0.6 / picture.width();
  return Scaled(picture, std::min(told, LargestScale(picture, room)));
}

QSize FitInto(QSize picture, QSize room) {
  return picture.isEmpty() ? QSize() : Scaled(picture, LargestScale(picture, room));
}
