#include "documents/NewDocumentPictures.h"

#include <QPainter>
#include <QPainterPath>

#include "toolkit/ArtColours.h"

namespace {

constexpr int edge = 32;

void DrawSheet(QPainter &painter) {
  QPainterPath sheet;
  sheet.moveTo(5.5, 1.5);
  sheet.lineTo(20.5, 1.5);
  sheet.lineTo(26.5, 7.5);
  sheet.lineTo(26.5, 30.5);
  sheet.lineTo(5.5, 30.5);
  sheet.closeSubpath();
  painter.setPen(ArtColours::Outline);
  painter.setBrush(ArtColours::Paper);
  painter.drawPath(sheet);
  const QPointF corner[] = {{20.5, 1.5}, {20.5, 7.5}, {26.5, 7.5}};
  painter.setBrush(ArtColours::Shade);
  painter.drawPolygon(corner, 3);
}

// Lines of tags, as a page begins; an author tells the variants apart by their band.
void DrawPage(QPainter &painter, const QColor &band) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(band);
  painter.drawRect(QRectF(6, 20, 20, 6));
  painter.setBrush(ArtColours::Outline);
  painter.drawRect(QRectF(9, 10, 8, 1.5));
  painter.drawRect(QRectF(11, 13, 11, 1.5));
  painter.drawRect(QRectF(11, 16, 8, 1.5));
}

void DrawLetters(QPainter &painter, const QString &letters) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(6);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(6, 20, 20, 6), Qt::AlignCenter, letters);
}

void DrawFrames(QPainter &painter) {
  painter.setPen(QPen(ArtColours::Orange, 1));
  painter.setBrush(ArtColours::Paper);
  painter.drawRect(QRectF(8.5, 9.5, 15, 8));
  painter.drawLine(QPointF(13.5, 9.5), QPointF(13.5, 17.5));
}

void DrawCup(QPainter &painter) {
  painter.setPen(QPen(ArtColours::Orange, 1));
  painter.setBrush(ArtColours::Orange);
  painter.drawRoundedRect(QRectF(10, 16, 10, 8), 2, 2);
  painter.setBrush(Qt::NoBrush);
  painter.drawArc(QRectF(18, 17, 5, 5), -90 * 16, 180 * 16);
  painter.setPen(QPen(ArtColours::Red, 1));
  for (const qreal x : {12.5, 15.0, 17.5}) painter.drawLine(QPointF(x, 14), QPointF(x + 0.8, 10.5));
}

}  // namespace

QPixmap NewDocumentPicture(NewDocumentType type, qreal devicePixelRatio) {
  QPixmap picture(QSize(edge, edge) * devicePixelRatio);
  picture.setDevicePixelRatio(devicePixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawSheet(painter);
  switch (type) {
    case NewDocumentType::BlankPage:
      break;
    case NewDocumentType::HtmlStrict:
      DrawPage(painter, ArtColours::DarkBlue);
      DrawLetters(painter, QStringLiteral("S"));
      break;
    case NewDocumentType::HtmlTransitional:
      DrawPage(painter, ArtColours::Green);
      DrawLetters(painter, QStringLiteral("T"));
      break;
    case NewDocumentType::HtmlFrameset:
      DrawPage(painter, ArtColours::Orange);
      DrawFrames(painter);
      DrawLetters(painter, QStringLiteral("F"));
      break;
    case NewDocumentType::AppletPage:
      DrawPage(painter, ArtColours::Red);
      DrawLetters(painter, QStringLiteral("APP"));
      break;
    case NewDocumentType::Java:
      DrawCup(painter);
      break;
  }
  return picture;
}
