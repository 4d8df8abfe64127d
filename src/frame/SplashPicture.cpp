#include "frame/SplashPicture.h"

#include <QPainter>

#include "frame/ProgramIcon.h"

namespace {

constexpr QSize pictureSize(480, 270);

QFont PixelFont(const QString &family, int pixels, bool bold) {
  QFont font(family);
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

// Mark-up that fades into the ground, as a page in the making.
void DrawMarkup(QPainter &painter) {
  const QString lines[] = {QStringLiteral("<html>"),
                           QStringLiteral("  <head>"),
                           QStringLiteral("    <title>tagwright</title>"),
                           QStringLiteral("  </head>"),
                           QStringLiteral("  <body>"),
                           QStringLiteral("    <h1>written by hand</h1>"),
                           QStringLiteral("    <p align=\"left\">"),
                           QStringLiteral("  </body>"),
                           QStringLiteral("</html>")};
  painter.setFont(PixelFont(QStringLiteral("Liberation Mono"), 14, false));
  int y = 34;
  for (const QString &line : lines) {
    painter.setPen(QColor(255, 255, 255, 38));
    painter.drawText(QPoint(250, y), line);
    y += 24;
  }
}

}  // namespace

QPixmap SplashPicture(qreal devicePixelRatio) {
  QPixmap picture(pictureSize * devicePixelRatio);
  picture.setDevicePixelRatio(devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect all(QPoint(), pictureSize);

  DrawProgramGround(painter, all);
  DrawMarkup(painter);

  painter.save();
  painter.translate(24, 44);
  painter.scale(3, 3);
  DrawProgramSign(painter);
  painter.restore();

  painter.setPen(Qt::white);
  painter.setFont(PixelFont(QStringLiteral("Liberation Sans"), 40, true));
  painter.drawText(QPoint(36, 176), QStringLiteral("tagwright"));
  painter.setFont(PixelFont(QStringLiteral("Liberation Sans"), 15, false));
  painter.setPen(QColor(0xd9, 0xe8, 0xf7));
  painter.drawText(QPoint(38, 202), QStringLiteral("hypertext authoring bench"));
  return picture;
}
