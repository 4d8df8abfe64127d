#include "assistants/FramePicture.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr QSize drawing(40, 32);
constexpr int margin = 6;  // room for the focus rectangle and the outline

// In device pixels. Neighbours share the line between them.
void Draw(QPainter &painter, const FramePart &part, const QRect &place, int line,
          const QPalette &colours) {
  if (part.kind == FramePart::Kind::Frame) {
    painter.fillRect(place, colours.color(QPalette::Text));
    painter.fillRect(place.adjusted(line, line, -line, -line), colours.color(QPalette::Base));
    return;
  }
  const bool rows = part.kind == FramePart::Kind::Rows;
  const int length = (rows ? place.height() : place.width()) - line;
  int percents = 0;
  for (size_t i = 0; i < part.parts.size(); ++i) {
    const int from = length * percents / 100;
    percents += part.percents[i];
    const int size = length * percents / 100 - from + line;
    Draw(painter, part.parts[i],
         rows ? QRect(place.x(), place.y() + from, place.width(), size)
              : QRect(place.x() + from, place.y(), size, place.height()),
         line, colours);
  }
}

QString Joined(const std::vector<const char *> &words) {
  QStringList list;
  for (const char *word : words) list << QString::fromLatin1(word);
  return list.join(QLatin1String(", "));
}

// "rows 20/80 (Upper, cols 80/20 (Left, Right))"
QString Description(const FramePart &part, const FramesetLayout &layout) {
  if (part.kind == FramePart::Kind::Frame) return QString::fromLatin1(layout.slots[part.slot]);
  QStringList sizes;
  for (const int percent : part.percents) sizes << QString::number(percent);
  QStringList parts;
  for (const FramePart &inner : part.parts) parts << Description(inner, layout);
  return QLatin1String(part.kind == FramePart::Kind::Rows ? "rows " : "columns ") +
         sizes.join(u'/') + QLatin1String(" (") + parts.join(QLatin1String(", ")) + u')';
}

}  // namespace

FramePicture::FramePicture(const FramesetLayout &layout, QWidget *parent)
    : QRadioButton(parent), layout_(layout) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAccessibleName(Joined(layout.slots));
  setAccessibleDescription(Description(layout.division, layout));
  setToolTip(accessibleName());
}

QSize FramePicture::sizeHint() const {
  return drawing.grownBy(QMargins(margin, margin, margin, margin));
}

void FramePicture::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(3, 3, -3, -3);
    focus.state |= QStyle::State_KeyboardFocusChange;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
  // On whole device pixels every line is sharp.
  const QTransform toDevice = painter.deviceTransform();
  const QRectF place(QPointF((width() - drawing.width()) / 2, (height() - drawing.height()) / 2),
                     drawing);
  painter.setTransform(toDevice.inverted(), true);
  Draw(painter, layout_.division, toDevice.mapRect(place).toRect(),
       qMax(1, qRound(devicePixelRatioF())), palette());
}
