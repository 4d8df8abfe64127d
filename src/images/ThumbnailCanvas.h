#pragma once

#include <QCache>
#include <QFrame>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <set>
#include <vector>

#include "images/ThumbnailGrid.h"
#include "toolkit/DrawnCells.h"

/// The canvas of the thumbnails: as high as all its cells, but only what is seen of it is drawn and
/// only so many thumbnails are kept as fit into 256 MB. The others are decoded again when they are
/// seen. The cell of shpThumbnailSelection is the selected one. With the keyboard the arrows move a
/// focus frame from cell to cell, and Space presses the cell in it. To assistive tools each cell is
/// a push button with the name of its file.
class ThumbnailCanvas : public QWidget, public DrawnCells {
  Q_OBJECT

 public:
  /// How the cells of one scan look.
  struct Look {
    ThumbnailGrid grid;
    int widthIndex = 0;  ///< of the preferences; cuts the names
    bool frames = false;
    bool names = false;
    QImage unreadable;  ///< in place of a picture that can't be read
    QImage other;       ///< of a file that is no picture by its name
  };

  explicit ThumbnailCanvas(QWidget *parent = nullptr);

  /// Takes all cells away. The canvas keeps its size.
  void Clear(Look look);

  /// Adds the cell of a file behind the others, and decodes its thumbnail if its name tells of a
  /// picture.
  void Add(const QString &path);

  /// The file of a cell; empty if there is no such cell.
  QString PathOf(int index) const;
  bool IsReadable(int index) const { return !cells_[index].unreadable; }
  int Count() const { return int(cells_.size()); }
  const ThumbnailGrid &Grid() const { return look_.grid; }

  /// Moves the selection shape over a cell.
  void Select(int index);
  void SetShapeColour(const QColor &colour);

  int CellCount() const override { return Count(); }
  QString CellName(int cell) const override;
  QRect CellRect(int cell) const override { return look_.grid.Cell(cell - 1); }
  void PressCell(int cell) override { Q_EMIT CellPressed(cell - 1); }
  int CurrentCell() const override { return current_ + 1; }
  QAccessible::Role Role() const override { return QAccessible::Grouping; }
  QAccessible::Role CellRole() const override { return QAccessible::PushButton; }

  /// Bytes of decoded thumbnails that are kept.
  void SetMemory(qint64 bytes) { thumbnails_.setMaxCost(bytes); }

 Q_SIGNALS:
  /// The user has pressed the cell of a file.
  void CellPressed(int index);
  /// The keyboard has gone to a cell, which may be out of sight.
  void CurrentMoved(int index);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  struct Cell {
    QString path;
    bool image;  // by its name
    bool unreadable = false;
  };

  int FileAt(QPoint point) const;
  void MoveTo(int index);
  QFont NameFont() const;
  QSize PictureSize(QSize picture) const;
  bool Decode(int index);
  void DecodeNextMissing();
  void DrawCell(QPainter &painter, int index);
  void DrawPicture(QPainter &painter, const QRect &cell, const QImage &picture, QSize size) const;
  void DrawFrame(QPainter &painter, const QRect &cell) const;
  void DrawFocus(QPainter &painter);

  Look look_;
  std::vector<Cell> cells_;
  QCache<int, QImage> thumbnails_;
  std::set<int> missing_;  // seen, but not kept any more
  int current_ = 0;        // where the keyboard is
  QTimer timMissing_;
  QFrame *shpThumbnailSelection_;
};
