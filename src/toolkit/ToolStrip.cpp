#include "toolkit/ToolStrip.h"

#include <QPainter>

ToolStrip::ToolStrip(Qt::Orientation direction, int buttons, QWidget *parent)
    : QWidget(parent),
      artwork_(
          direction == Qt::Horizontal ? QSize(buttons * Cell, Cell) : QSize(Cell, buttons * Cell),
          QImage::Format_ARGB32_Premultiplied) {
  artwork_.fill(Qt::transparent);
  setFixedSize(artwork_.size());
}

void ToolStrip::PSet(int x, int y, qint32 colour) {
  if (!artwork_.valid(x, y)) return;
  artwork_.setPixel(x, y, qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF));
  update(x, y, 1, 1);
}

void ToolStrip::paintEvent(QPaintEvent *) {
  QPainter(this).drawImage(0, 0, artwork_);
}
