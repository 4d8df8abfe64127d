// The pictures of the main window's trees, drawn in 16 by 16 units so that they are sharp at any
// scale.

#include <QPainter>

#include "frame/mdiMain.h"
#include "toolkit/ArtColours.h"
#include "toolkit/DrawnIcon.h"

namespace {

void SetOutline(QPainter &painter) {
  painter.setPen(QPen(ArtColours::Outline, 1));
}

void DrawWindow(QPainter &painter, const QColor &paper, bool lines) {
  SetOutline(painter);
  painter.setBrush(paper);
  painter.drawRect(QRectF(1.5, 2.5, 13, 11));
  painter.setBrush(ArtColours::Blue);
  painter.drawRect(QRectF(1.5, 2.5, 13, 3));
  if (!lines) return;
  for (const qreal y : {8.5, 10.5}) painter.drawLine(QPointF(4, y), QPointF(12, y));
}

void DrawOpenWindows(QPainter &painter) {
  DrawWindow(painter, ArtColours::Paper, true);
}
void DrawNoWindows(QPainter &painter) {
  DrawWindow(painter, ArtColours::Shade, false);
}

// A sheet with something written on it: a stencil that can be inserted, or documents.
void DrawSheet(QPainter &painter) {
  SetOutline(painter);
  painter.setBrush(ArtColours::Paper);
  const QPointF sheet[] = {{2.5, 1.5}, {9.5, 1.5}, {13.5, 5.5}, {13.5, 14.5}, {2.5, 14.5}};
  painter.drawPolygon(sheet, 5);
  painter.setBrush(ArtColours::Shade);
  const QPointF corner[] = {{9.5, 1.5}, {9.5, 5.5}, {13.5, 5.5}};
  painter.drawPolygon(corner, 3);
  painter.setPen(QPen(ArtColours::Blue, 1));
  painter.drawLine(QPointF(5, 7.5), QPointF(9, 7.5));
  for (const qreal y : {9.5, 11.5}) painter.drawLine(QPointF(5, y), QPointF(11, y));
}

void DrawLibrary(QPainter &painter) {
  SetOutline(painter);
  const QColor spines[] = {ArtColours::Red, ArtColours::Green, ArtColours::Blue};
  qreal x = 1.5;
  for (const QColor &spine : spines) {
    painter.setBrush(spine);
    painter.drawRect(QRectF(x, 2.5, 4, 11));
    x += 4.5;
  }
}

}  // namespace

const QVector<QIcon> &mdiMain::TreeImages() {
  static const QVector<QIcon> images{DrawnIcon(16, DrawOpenWindows), DrawnIcon(16, DrawSheet),
                                     DrawnIcon(16, DrawNoWindows), DrawnIcon(16, DrawLibrary)};
  return images;
}
