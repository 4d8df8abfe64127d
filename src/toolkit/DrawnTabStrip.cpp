#include "toolkit/DrawnTabStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr int slant = 6;
constexpr int openFrom = 5;  // where the frame opens over the active tab, from the tab's edge
constexpr int labelPoints = 7;
const QColor shade(128, 128, 128);

// Where there is no Tahoma, a font that is as narrow: the usual substitute runs over a tab's edges.
QFont LabelFont(bool bold) {
  QFont font({QStringLiteral("Tahoma"), QStringLiteral("Liberation Sans")}, labelPoints);
  font.setBold(bold);
  return font;
}

}  // namespace

DrawnTabStrip::DrawnTabStrip(QWidget *parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  InstallAccessible();
}

void DrawnTabStrip::SetTabs(const QList<Label> &labels, int lines) {
  labels_ = labels;
  lines_ = lines;
  active_ = 1;
  update();
}

void DrawnTabStrip::SetActiveTab(int tab) {
  active_ = tab;
  update();
}

QString DrawnTabStrip::CellName(int tab) const {
  return labels_[tab - 1].active.simplified();
}

QRect DrawnTabStrip::CellRect(int tab) const {
  return QRect((tab - 1) * TabWidth, TabTop(), TabWidth, lines_ * LineHeight);
}

// The edge between two tabs belongs to the first one, the strip's lower edge to both.
int DrawnTabStrip::TabAt(QPoint place) const {
  const bool inStrip = place.y() >= TabTop() && place.y() <= TabTop() + lines_ * LineHeight;
  if (!inStrip || place.x() < 0) return 0;
  const int tab = place.x() == 0 ? 1 : (place.x() - 1) / TabWidth + 1;
  return tab <= CellCount() ? tab : 0;
}

void DrawnTabStrip::mousePressEvent(QMouseEvent *event) {
  if (const int tab = TabAt(event->position().toPoint()); tab > 0) Q_EMIT TabPressed(tab);
}

void DrawnTabStrip::keyPressEvent(QKeyEvent *event) {
  const bool back = event->key() == Qt::Key_Left;
  if (!back && event->key() != Qt::Key_Right) return QWidget::keyPressEvent(event);
  const int tab = active_ + (back ? -1 : 1);
  if (tab >= 1 && tab <= CellCount()) Q_EMIT TabPressed(tab);
}

void DrawnTabStrip::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  Q_EMIT Resized();
}

void DrawnTabStrip::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  update();
}

void DrawnTabStrip::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update();
}

// ---- drawing

void DrawnTabStrip::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  if (TabTop() > 0) {
    painter.setBrush(palette().base());
    painter.drawRect(0, 0, width() - 1, TabTop());
  }
  for (int tab = CellCount(); tab >= 1; --tab) {
    if (tab != active_) DrawTab(painter, tab);
  }
  if (CellCount() > 0) DrawTab(painter, active_);
}

void DrawnTabStrip::DrawTab(QPainter &painter, int tab) const {
  const bool active = tab == active_;
  const QRect cell = CellRect(tab);
  const int bottom = cell.bottom();
  const QPolygon outline{{cell.left(), cell.top()},
                         {cell.left() + slant, bottom},
                         {cell.right() - slant, bottom},
                         {cell.right(), cell.top()}};
  painter.setBrush(palette().brush(active ? QPalette::Base : QPalette::Button));
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(outline);
  painter.setPen(active ? palette().color(QPalette::WindowText) : shade);
  painter.drawPolyline(outline);
  if (active) {
    painter.setPen(shade);
    painter.drawLine(cell.left() + slant + 1, bottom - 1, cell.right() - slant - 1, bottom - 1);
    painter.drawLine(cell.right() - slant - 1, bottom - 1, cell.right() - 1, cell.top() + 1);
    painter.setPen(palette().color(QPalette::Base));
    painter.drawLine(cell.left() + openFrom, cell.top(), cell.right() - 1, cell.top());
  }
  painter.setFont(LabelFont(active));
  painter.setPen(palette().color(QPalette::WindowText));
  const Label &label = labels_[tab - 1];
  painter.drawText(cell, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip,
                   active ? label.active : label.inactive);
  if (active && hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = cell.adjusted(slant, 1, -slant, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}
