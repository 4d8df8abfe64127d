#include "toolkit/ToolStrip.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const QColor face(224, 224, 224);
const QColor light(255, 255, 255);
const QColor dark(150, 150, 150);

// A filled square of so many pixels in a cell's lower left corner, clear of the frame.
constexpr int squareEdge = 5;
constexpr int squareInset = 2;

void DrawFrame(QPainter &painter, const QRect &cell, const QColor &topLeft,
               const QColor &bottomRight) {
  painter.fillRect(cell.left(), cell.top(), cell.width(), 1, topLeft);
  painter.fillRect(cell.left(), cell.top(), 1, cell.height(), topLeft);
  painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1, bottomRight);
  painter.fillRect(cell.right(), cell.top(), 1, cell.height(), bottomRight);
}

}  // namespace

ToolStrip::ToolStrip(Qt::Orientation direction, const QStringList &toolTips, QWidget *parent)
    : QWidget(parent), direction_(direction), toolTips_(toolTips) {
  const int cells = std::max(CellCount(), 1);
  artwork_ =
      QImage(direction == Qt::Horizontal ? QSize(cells * Cell, Cell) : QSize(Cell, cells * Cell),
             QImage::Format_ARGB32_Premultiplied);
  artwork_.fill(Qt::transparent);
  setFixedSize(artwork_.size());
  if (toolTips.isEmpty()) return;
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  InstallAccessible();
}

QRect ToolStrip::CellRect(int button) const {
  const int start = (button - 1) * Cell;
  const QPoint corner = direction_ == Qt::Horizontal ? QPoint(start, 0) : QPoint(0, start);
  return QRect(corner, QSize(Cell, Cell));
}

int ToolStrip::ButtonUnder(QPoint place) const {
  const int button = StripButtonAt(direction_ == Qt::Horizontal ? place.x() : place.y());
  return IsButton(button) ? button : 0;
}

void ToolStrip::Press(int button) {
  if (IsButton(button)) Q_EMIT ButtonUp(button);
}

// ---- drawing

void ToolStrip::PSet(int x, int y, qint32 colour) {
  if (!artwork_.valid(x, y)) return;
  artwork_.setPixel(x, y, qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF));
  update(x, y, 1, 1);
}

void ToolStrip::SetSquare(int button, const QColor &colour) {
  squares_[button] = colour;
  update(CellRect(button));
}

QColor ToolStrip::Square(int button) const {
  const auto square = squares_.find(button);
  return square == squares_.end() ? QColor() : square->second;
}

void ToolStrip::Mark(int button, Look look) {
  if (marked_ == button && look_ == look) return;
  if (marked_ > 0) update(CellRect(marked_));
  marked_ = button;
  look_ = look;
  if (marked_ > 0) update(CellRect(marked_));
}

void ToolStrip::ClearMark() {
  Mark(0, Look::Raised);
}

// All points of a picture are equally large, also where the display's scale is no whole number:
// what a cell has beyond the next smaller one lies round its picture.
void ToolStrip::DrawArtwork(QPainter &painter) const {
  const QTransform toDisplay = painter.deviceTransform();
  const QTransform fromDisplay = toDisplay.inverted();
  for (int button = 1; button <= std::max(CellCount(), 1); ++button) {
    const QRectF cell = toDisplay.mapRect(QRectF(CellRect(button)));
    const int side = Cell * std::max(int(cell.width() / Cell + 0.01), 1);
    const QRectF place(std::round(cell.center().x() - side / 2.0),
                       std::round(cell.center().y() - side / 2.0), side, side);
    painter.drawImage(fromDisplay.mapRect(place), artwork_, CellRect(button));
  }
}

void ToolStrip::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), face);
  DrawArtwork(painter);
  for (const auto &[button, colour] : squares_) {
    if (!colour.isValid()) continue;
    const QRect cell = CellRect(button);
    painter.fillRect(cell.left() + squareInset, cell.bottom() - squareInset - squareEdge + 1,
                     squareEdge, squareEdge, colour);
  }
  if (marked_ > 0) {
    const bool raised = look_ == Look::Raised;
    DrawFrame(painter, CellRect(marked_), raised ? light : dark, raised ? dark : light);
  }
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = CellRect(current_).adjusted(1, 1, -1, -1);
    focus.state |= QStyle::State_KeyboardFocusChange;
    focus.backgroundColor = face;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

// ---- mouse

void ToolStrip::mouseMoveEvent(QMouseEvent *event) {
  const int button = ButtonUnder(event->position().toPoint());
  Mark(button, Look::Raised);
  if (button > 0) setToolTip(toolTips_[button - 1].toHtmlEscaped());
}

void ToolStrip::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton) {
    Mark(ButtonUnder(event->position().toPoint()), Look::Sunken);
  }
}

void ToolStrip::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint place = event->position().toPoint();
  const int button = rect().contains(place) ? ButtonUnder(place) : 0;
  Mark(button, Look::Raised);
  Press(button);
}

void ToolStrip::leaveEvent(QEvent *) {
  ClearMark();
}

// The tooltip goes when the pointer leaves its cell.
bool ToolStrip::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto *help = static_cast<QHelpEvent *>(event);
  if (const int button = ButtonUnder(help->pos()); button > 0) {
    QToolTip::showText(help->globalPos(), toolTips_[button - 1].toHtmlEscaped(), this,
                       CellRect(button));
  }
  return true;
}

// ---- keyboard

void ToolStrip::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      return MoveTo(current_ - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
      return MoveTo(current_ + 1);
    case Qt::Key_Home:
      return MoveTo(1);
    case Qt::Key_End:
      return MoveTo(CellCount());
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) Press(current_);
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

void ToolStrip::MoveTo(int button) {
  current_ = std::clamp(button, 1, CellCount());
  update();
  QAccessibleEvent focused(this, QAccessible::Focus);
  focused.setChild(current_ - 1);
  QAccessible::updateAccessibility(&focused);
}

void ToolStrip::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  MoveTo(current_);
}

void ToolStrip::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update();
}
