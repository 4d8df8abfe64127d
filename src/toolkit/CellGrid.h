#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

#include "toolkit/DrawnCells.h"

/// Rows of equal cells that the caller paints, numbered from 1, row by row. A marker follows the
/// pointer. With the keyboard the arrows move it; Space does what the left mouse button does there,
/// Shift+Space and the menu key what the right one does, and Return is left to the dialog. To
/// assistive tools each cell is a push button.
class CellGrid : public QWidget, public DrawnCells {
  Q_OBJECT

 public:
  using PaintCell = std::function<void(QPainter &, const QRect &, int cell)>;

  explicit CellGrid(QWidget *parent = nullptr);

  /// cellSize in pixels; a cell for each name, which is what assistive tools say.
  void SetCells(int columns, QSize cellSize, const QStringList &names, PaintCell paint);

  QSize CellSize() const { return cellSize_; }

  int CellCount() const override { return int(names_.size()); }
  QString CellName(int cell) const override { return names_[cell - 1]; }
  QRect CellRect(int cell) const override;
  void PressCell(int cell) override { Click(cell, Qt::LeftButton); }
  int CurrentCell() const override { return marked_; }
  QAccessible::Role Role() const override { return QAccessible::Grouping; }
  QAccessible::Role CellRole() const override { return QAccessible::PushButton; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  void CellDown(int cell, Qt::MouseButton button);
  void CellUp(int cell, Qt::MouseButton button);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  int CellAt(QPoint place) const;  ///< 0 where there is none
  void Mark(int cell);
  void MoveTo(int cell);
  void Click(int cell, Qt::MouseButton button);

  int columns_ = 1;
  QSize cellSize_{1, 1};
  QStringList names_;
  PaintCell paint_;
  int marked_ = 1;
};
