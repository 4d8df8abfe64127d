#include "toolkit/CellGrid.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <utility>

CellGrid::CellGrid(QWidget *parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  InstallAccessible();
}

void CellGrid::SetCells(int columns, QSize cellSize, const QStringList &names, PaintCell paint) {
  columns_ = columns;
  cellSize_ = cellSize;
  names_ = names;
  paint_ = std::move(paint);
  setFixedSize(sizeHint());
  update();
}

QSize CellGrid::sizeHint() const {
  const int rows = (CellCount() + columns_ - 1) / columns_;
  return {columns_ * cellSize_.width(), std::max(rows, 1) * cellSize_.height()};
}

QRect CellGrid::CellRect(int cell) const {
  const int index = cell - 1;
  return {QPoint(index % columns_ * cellSize_.width(), index / columns_ * cellSize_.height()),
          cellSize_};
}

int CellGrid::CellAt(QPoint place) const {
  if (!rect().contains(place)) return 0;
  const int cell = place.y() / cellSize_.height() * columns_ + place.x() / cellSize_.width() + 1;
  return cell <= CellCount() ? cell : 0;
}

void CellGrid::Mark(int cell) {
  if (cell == 0 || cell == marked_) return;
  update(CellRect(marked_));
  marked_ = cell;
  update(CellRect(marked_));
}

void CellGrid::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  for (int cell = 1; cell <= CellCount(); ++cell) {
    if (CellRect(cell).intersects(event->rect())) paint_(painter, CellRect(cell), cell);
  }
  if (CellCount() == 0) return;
  const QRect marker = CellRect(marked_);
  painter.setPen(palette().color(QPalette::Base));
  painter.drawRect(marker.adjusted(1, 1, -2, -2));
  painter.setPen(palette().color(QPalette::Text));
  painter.drawRect(marker.adjusted(0, 0, -1, -1));
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = marker.adjusted(2, 2, -2, -2);
  focus.state |= QStyle::State_KeyboardFocusChange;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

// ---- mouse

void CellGrid::mouseMoveEvent(QMouseEvent *event) {
  Mark(CellAt(event->position().toPoint()));
}

void CellGrid::mousePressEvent(QMouseEvent *event) {
  if (const int cell = CellAt(event->position().toPoint()); cell > 0) {
    Mark(cell);
    Q_EMIT CellDown(cell, event->button());
  }
}

void CellGrid::mouseReleaseEvent(QMouseEvent *event) {
  if (const int cell = CellAt(event->position().toPoint()); cell > 0) {
    Q_EMIT CellUp(cell, event->button());
  }
}

// ---- keyboard

void CellGrid::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveTo(marked_ - 1);
    case Qt::Key_Right:
      return MoveTo(marked_ + 1);
    case Qt::Key_Up:
      return MoveTo(marked_ - columns_);
    case Qt::Key_Down:
      return MoveTo(marked_ + columns_);
    case Qt::Key_Home:
      return MoveTo(1);
    case Qt::Key_End:
      return MoveTo(CellCount());
    case Qt::Key_Space:
      return Click(marked_,
                   event->modifiers() & Qt::ShiftModifier ? Qt::RightButton : Qt::LeftButton);
    default:
      QWidget::keyPressEvent(event);
  }
}

// A right click has done its work when it was pressed.
void CellGrid::contextMenuEvent(QContextMenuEvent *event) {
  if (event->reason() == QContextMenuEvent::Keyboard) Click(marked_, Qt::RightButton);
}

void CellGrid::MoveTo(int cell) {
  if (cell < 1 || cell > CellCount()) return;
  Mark(cell);
  QAccessibleEvent focused(this, QAccessible::Focus);
  focused.setChild(marked_ - 1);
  QAccessible::updateAccessibility(&focused);
}

void CellGrid::Click(int cell, Qt::MouseButton button) {
  if (cell < 1 || cell > CellCount()) return;
  const QPointer<CellGrid> self(this);
  Q_EMIT CellDown(cell, button);
  if (self) Q_EMIT CellUp(cell, button);
}

void CellGrid::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  update(CellRect(marked_));
  MoveTo(marked_);
}

void CellGrid::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update(CellRect(marked_));
}
