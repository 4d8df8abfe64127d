#pragma once

#include <QRect>

/// Where the cells of the thumbnails lie on their canvas: rows of equal cells with gaps around
/// them, filled from the left. Measures are device-independent pixels, indices count from 0.
struct ThumbnailGrid {
  static constexpr int Gap = 4;  ///< 60 twips

  QSize cell;
  int columns = 1;

  /// The grid for the size indices of the preferences (0 small to 3 big; any other counts as small)
  /// on a canvas of that width. There is always a column.
  static ThumbnailGrid For(int heightIndex, int widthIndex, int canvasWidth);

  int RowHeight() const { return cell.height() + Gap; }

  /// What the canvas measures for so many files. The part of a row that isn't full counts in
  /// proportion, so the foot of a last row of big cells can lie below it.
  int CanvasHeight(int files) const;

  QRect Cell(int index) const;

  /// The cell under a point, whether a file fills it or not; -1 for a gap and beyond the columns.
  int IndexAt(QPoint point) const;
};

/// The size in which a picture is shown in a cell: a wide one 6/10 of the cell high, any other 6/10
/// of it wide, in its own proportions and at least a pixel; smaller where it would leave the room.
QSize FitThumbnail(QSize picture, QSize cell, QSize room);

/// The same for a picture box that is filled as far as the proportions allow.
QSize FitInto(QSize picture, QSize room);
