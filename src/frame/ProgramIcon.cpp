#include "frame/ProgramIcon.h"

#include <QPainter>

#include "toolkit/ArtColours.h"
#include "toolkit/DrawnIcon.h"

namespace {

void DrawIcon(QPainter &painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ArtColours::Night);
  painter.drawRoundedRect(QRectF(1, 1, 30, 30), 5, 5);
  DrawProgramSign(painter);
}

}  // namespace

void DrawProgramSign(QPainter &painter) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ArtColours::Yellow, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF opening[] = {{12, 8}, {5, 16}, {12, 24}};
  const QPointF closing[] = {{20, 8}, {27, 16}, {20, 24}};
  painter.drawPolyline(opening, 3);
  painter.drawPolyline(closing, 3);
  painter.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(16, 9), QPointF(16, 23));
}

void DrawProgramGround(QPainter &painter, const QRect &place) {
  QLinearGradient ground(place.topLeft(), place.bottomRight());
  ground.setColorAt(0, ArtColours::Night);
  ground.setColorAt(1, ArtColours::Blue);
  painter.fillRect(place, ground);
}

QIcon ProgramIcon() {
  return DrawnIcon(32, DrawIcon);
}
