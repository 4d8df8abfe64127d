// The pictures of the main window's trees, drawn in 16 by 16 units so that they are sharp at any
// scale.

#include <QPainter>

#include "frame/mdiMain.h"
#include "toolkit/DrawnIcon.h"

namespace {

void SetOutline(QPainter &painter) {
  painter.setPen(QPen(QColor(0x5a, 0x64, 0x70), 1));
}

void DrawWindow(QPainter &painter, const QColor &paper, bool lines) {
  SetOutline(painter);
  painter.setBrush(paper);
  painter.drawRect(QRectF(1.5, 2.5, 13, 11));
  painter.setBrush(QColor(0x2f, 0x6f, 0xb5));
  painter.drawRect(QRectF(1.5, 2.5, 13, 3));
  if (!lines) return;
  for (const qreal y : {8.0, 10.0, 12.0}) painter.drawLine(QPointF(4, y), QPointF(12, y));
}

void DrawOpenWindows(QPainter &painter) {
  DrawWindow(painter, Qt::white, true);
}
void DrawNoWindows(QPainter &painter) {
  DrawWindow(painter, QColor(0xd5, 0xdb, 0xe2), false);
}

void DrawGroup(QPainter &painter) {
  SetOutline(painter);
  painter.setBrush(QColor(0xf2, 0xc9, 0x4c));
  const QPointF folder[] = {{1.5, 3.5},  {6.5, 3.5},   {8, 5.5},
                            {14.5, 5.5}, {14.5, 13.5}, {1.5, 13.5}};
  painter.drawPolygon(folder, 6);
}

void DrawLibrary(QPainter &painter) {
  SetOutline(painter);
  const QColor spines[] = {QColor(0xc0, 0x39, 0x2b), QColor(0x3c, 0x8d, 0x4f),
                           QColor(0x2f, 0x6f, 0xb5)};
  qreal x = 1.5;
  for (const QColor &spine : spines) {
    painter.setBrush(spine);
    painter.drawRect(QRectF(x, 2.5, 4, 11));
    x += 4.5;
  }
}

}  // namespace

const QVector<QIcon> &mdiMain::TreeImages() {
  static const QVector<QIcon> images{DrawnIcon(16, DrawOpenWindows), DrawnIcon(16, DrawGroup),
                                     DrawnIcon(16, DrawNoWindows), DrawnIcon(16, DrawLibrary)};
  return images;
}
