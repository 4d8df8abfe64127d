#include "frame/AboutPicture.h"

#include <QPainter>
#include <QPainterPath>

#include "frame/ProgramIcon.h"
#include "toolkit/ArtColours.h"

namespace {

constexpr QSize pictureSize(520, 320);
constexpr int paneMargin = 12;

struct Word {
  int line;
  int left;
  int width;
  QRgb colour;
};

// A page seen from afar: its words as bars in the colours that the editor gives to tags.
void DrawPage(QPainter &painter, QColor paper, bool written) {
  const QRect page(0, 0, 132, 172);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 60));
  painter.drawRoundedRect(page.translated(4, 5), 3, 3);
  painter.setBrush(paper);
  painter.drawRoundedRect(page, 3, 3);
  if (!written) return;
  constexpr QRgb border = 0xff8c2f2f;
  constexpr QRgb header = 0xff2f7d46;
  constexpr QRgb body = 0xff2f55a8;
  constexpr QRgb text = 0xffb9c1cc;
  const Word words[] = {{0, 0, 34, border}, {1, 8, 30, header},  {2, 16, 22, header},
                        {2, 42, 44, text},  {2, 90, 20, header}, {3, 8, 34, header},
                        {4, 8, 28, body},   {5, 16, 18, body},   {5, 38, 58, text},
                        {6, 16, 12, body},  {6, 32, 78, text},   {7, 16, 94, text},
                        {8, 16, 62, text},  {8, 82, 14, body},   {9, 16, 42, body},
                        {10, 8, 32, body},  {11, 0, 38, border}};
  for (const Word &word : words) {
    painter.setBrush(QColor::fromRgb(word.colour));
    painter.drawRoundedRect(QRectF(10 + word.left, 14 + word.line * 12.5, word.width, 5), 2.5, 2.5);
  }
}

void DrawTurnedPage(QPainter &painter, QPoint place, qreal degrees, QColor paper, bool written) {
  painter.save();
  painter.translate(place);
  painter.rotate(degrees);
  DrawPage(painter, paper, written);
  painter.restore();
}

void DrawTitle(QPainter &painter) {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(34);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QPoint(30, 282), QStringLiteral("tagwright"));
  font.setPixelSize(13);
  font.setBold(false);
  painter.setFont(font);
  painter.setPen(QColor(0xd9, 0xe8, 0xf7));
  painter.drawText(QPoint(32, 302), QStringLiteral("hypertext authoring bench"));
}

}  // namespace

QPixmap AboutPicture(qreal devicePixelRatio) {
  QPixmap picture(pictureSize * devicePixelRatio);
  picture.setDevicePixelRatio(devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect all(QPoint(), pictureSize);

  DrawProgramGround(painter, all);
  QRadialGradient lamp(QPointF(130, 110), 220);
  lamp.setColorAt(0, QColor(255, 240, 200, 70));
  lamp.setColorAt(1, QColor(255, 240, 200, 0));
  painter.fillRect(all, lamp);

  DrawTurnedPage(painter, QPoint(44, 58), -11, QColor(0xc9, 0xd6, 0xe6), false);
  DrawTurnedPage(painter, QPoint(84, 30), 7, QColor(0xe2, 0xea, 0xf3), false);
  DrawTurnedPage(painter, QPoint(58, 42), -2, Qt::white, true);
  painter.save();
  painter.translate(152, 152);
  painter.scale(2.2, 2.2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ArtColours::Night);
  painter.drawRoundedRect(QRectF(0, 0, 32, 32), 6, 6);
  DrawProgramSign(painter);
  painter.restore();
  DrawTitle(painter);

  painter.setPen(QPen(QColor(255, 255, 255, 60), 1));
  painter.setBrush(QColor(10, 18, 30, 110));
  painter.drawRoundedRect(
      QRectF(aboutTextPlace.adjusted(-paneMargin, -paneMargin, paneMargin, paneMargin)), 6, 6);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0, 0, 0, 120), 1));
  painter.drawRect(QRectF(all).adjusted(0.5, 0.5, -0.5, -0.5));
  return picture;
}
