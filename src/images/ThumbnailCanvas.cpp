#include "images/ThumbnailCanvas.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "images/ImageFolder.h"
#include "images/ThumbnailText.h"
#include "toolkit/LoadPicture.h"

namespace {

constexpr qint64 keptBytes = 256 << 20;
constexpr int namePoints = 6;
constexpr int frameWidth = 1;
const QColor shade(150, 150, 150);
const QColor light(230, 230, 230);

}  // namespace

ThumbnailCanvas::ThumbnailCanvas(QWidget *parent)
    : QWidget(parent), thumbnails_(keptBytes), shpThumbnailSelection_(new QFrame(this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);  // as long as there is nothing to go to
  InstallAccessible();
  shpThumbnailSelection_->setObjectName(QStringLiteral("shpThumbnailSelection"));
  shpThumbnailSelection_->setAttribute(Qt::WA_TransparentForMouseEvents);
  shpThumbnailSelection_->hide();
  timMissing_.setParent(this);
  timMissing_.setSingleShot(true);
  connect(&timMissing_, &QTimer::timeout, this, &ThumbnailCanvas::DecodeNextMissing);
}

void ThumbnailCanvas::Clear(Look look) {
  look_ = std::move(look);
  cells_.clear();
  thumbnails_.clear();
  missing_.clear();
  current_ = 0;
  setFocusPolicy(Qt::NoFocus);
  shpThumbnailSelection_->hide();
  setToolTip({});
  update();
}

void ThumbnailCanvas::Add(const QString &path) {
  cells_.push_back({path, ImageFolder::IsImageName(path)});
  const int index = Count() - 1;
  if (cells_.back().image) Decode(index);
  setFocusPolicy(Qt::StrongFocus);
  update(look_.grid.Cell(index));
}

QString ThumbnailCanvas::PathOf(int index) const {
  return index >= 0 && index < Count() ? cells_[index].path : QString();
}

QString ThumbnailCanvas::CellName(int cell) const {
  return InOneLine(QFileInfo(PathOf(cell - 1)).fileName());
}

void ThumbnailCanvas::Select(int index) {
  update(look_.grid.Cell(current_));
  current_ = index;
  shpThumbnailSelection_->setGeometry(look_.grid.Cell(index));
  shpThumbnailSelection_->show();
}

void ThumbnailCanvas::SetShapeColour(const QColor &colour) {
  shpThumbnailSelection_->setStyleSheet(
      QStringLiteral("#shpThumbnailSelection { border: 2px solid %1; }").arg(colour.name()));
}

// ---- the mouse

int ThumbnailCanvas::FileAt(QPoint point) const {
  const int index = look_.grid.IndexAt(point);
  return index < Count() ? index : -1;
}

void ThumbnailCanvas::mousePressEvent(QMouseEvent *event) {
  if (const int index = FileAt(event->position().toPoint()); index >= 0) Q_EMIT CellPressed(index);
}

void ThumbnailCanvas::mouseMoveEvent(QMouseEvent *event) {
  setToolTip(PathOf(FileAt(event->position().toPoint())).toHtmlEscaped());
}

// ---- the keyboard

void ThumbnailCanvas::keyPressEvent(QKeyEvent *event) {
  const int columns = look_.grid.columns;
  const int page = std::max(1, visibleRegion().boundingRect().height() / look_.grid.RowHeight());
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveTo(current_ - 1);
    case Qt::Key_Right:
      return MoveTo(current_ + 1);
    case Qt::Key_Up:
      return MoveTo(current_ - columns);
    case Qt::Key_Down:
      return MoveTo(current_ + columns);
    case Qt::Key_PageUp:
      return MoveTo(std::max(current_ - page * columns, current_ % columns));
    case Qt::Key_PageDown:
      return MoveTo(std::min(current_ + page * columns, Count() - 1));
    case Qt::Key_Home:
      return MoveTo(0);
    case Qt::Key_End:
      return MoveTo(Count() - 1);
    case Qt::Key_Space:
      if (current_ < Count()) Q_EMIT CellPressed(current_);
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

void ThumbnailCanvas::MoveTo(int index) {
  if (index < 0 || index >= Count()) return;
  update(look_.grid.Cell(current_));
  current_ = index;
  update(look_.grid.Cell(current_));
  QAccessibleEvent focused(this, QAccessible::Focus);
  focused.setChild(current_);
  QAccessible::updateAccessibility(&focused);
  Q_EMIT CurrentMoved(current_);
}

void ThumbnailCanvas::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  if (event->reason() == Qt::MouseFocusReason) return;  // the press tells which cell
  MoveTo(current_);
}

void ThumbnailCanvas::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update(look_.grid.Cell(current_));
}

// ---- thumbnails

QFont ThumbnailCanvas::NameFont() const {
  return QFont(QStringLiteral("MS Sans Serif"), namePoints);
}

// A high picture leaves room for the name at the foot, and as much at the top.
QSize ThumbnailCanvas::PictureSize(QSize picture) const {
  const QSize cell = look_.grid.cell;
  const int nameHeight =
      look_.names ? std::min(QFontMetrics(NameFont()).height() + frameWidth, cell.height() / 5) : 0;
  const int edge = std::max(nameHeight, 2 * frameWidth);
  return FitThumbnail(picture, cell, cell - QSize(4 * frameWidth, 2 * edge));
}

bool ThumbnailCanvas::Decode(int index) {
  const qreal ratio = devicePixelRatioF();
  auto loaded =
      LoadScaledPicture(cells_[index].path, [&](QSize size) { return PictureSize(size) * ratio; });
  cells_[index].unreadable = !loaded;
  if (!loaded) return false;
  QImage picture = loaded->picture.convertToFormat(loaded->picture.hasAlphaChannel()
                                                       ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  const qint64 bytes = picture.sizeInBytes();
  return thumbnails_.insert(index, new QImage(std::move(picture)), bytes);
}

// One at a time: whoever scrolls on doesn't wait for what went by.
void ThumbnailCanvas::DecodeNextMissing() {
  const QRect seen = visibleRegion().boundingRect();
  std::erase_if(missing_, [&](int index) { return !look_.grid.Cell(index).intersects(seen); });
  if (missing_.empty()) return;
  const int index = *missing_.begin();
  missing_.erase(missing_.begin());
  Decode(index);
  update(look_.grid.Cell(index));
  if (!missing_.empty()) timMissing_.start(0);
}

// ---- drawing

void ThumbnailCanvas::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  const QRect seen = event->rect();
  painter.fillRect(seen, palette().base());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const ThumbnailGrid &grid = look_.grid;
  if (Count() == 0) return;
  const int first = seen.top() / grid.RowHeight() * grid.columns;
  const int behind = (seen.bottom() / grid.RowHeight() + 1) * grid.columns;
  for (int index = first; index < std::min(behind, Count()); ++index) {
    if (grid.Cell(index).intersects(seen)) DrawCell(painter, index);
  }
  if (hasFocus()) DrawFocus(painter);
}

void ThumbnailCanvas::DrawCell(QPainter &painter, int index) {
  const QRect cell = look_.grid.Cell(index);
  const Cell &file = cells_[index];
  painter.setClipRect(cell);
  if (!file.image) {
    DrawPicture(painter, cell, look_.other, PictureSize(look_.other.size()));
  } else if (file.unreadable) {
    DrawPicture(painter, cell, look_.unreadable, PictureSize(look_.unreadable.size()));
  } else if (const QImage *thumbnail = thumbnails_.object(index)) {
    DrawPicture(painter, cell, *thumbnail, thumbnail->deviceIndependentSize().toSize());
  } else {
    missing_.insert(index);
    if (!timMissing_.isActive()) timMissing_.start(0);
  }
  if (look_.frames) DrawFrame(painter, cell);
  if (!look_.names) return;
  const QString name =
      file.unreadable ? notReadable
                      : InOneLine(ThumbnailName(QFileInfo(file.path).fileName(), look_.widthIndex));
  painter.setPen(palette().color(QPalette::Text));
  const QRect line = cell.adjusted(2 * frameWidth, 0, -2 * frameWidth, -2 * frameWidth);
  QFont font = NameFont();
  const int width = QFontMetrics(font).horizontalAdvance(name);
  if (width > line.width()) font.setStretch(std::max(50, 100 * line.width() / width));
  painter.setFont(font);
  painter.drawText(line, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine, name);
}

void ThumbnailCanvas::DrawPicture(QPainter &painter, const QRect &cell, const QImage &picture,
                                  QSize size) const {
  if (picture.isNull()) return;
  const QSize space = cell.size() - size;
  painter.drawImage(QRect(cell.topLeft() + QPoint(space.width() / 2, space.height() / 2), size),
                    picture);
}

void ThumbnailCanvas::DrawFrame(QPainter &painter, const QRect &cell) const {
  painter.setPen(shade);
  painter.drawLine(cell.topLeft(), cell.topRight());
  painter.drawLine(cell.topLeft(), cell.bottomLeft());
  painter.setPen(light);
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  painter.drawLine(cell.topRight(), cell.bottomRight());
}

// Within the selection shape, which may lie over the same cell.
void ThumbnailCanvas::DrawFocus(QPainter &painter) {
  painter.setClipping(false);
  painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DotLine));
  painter.drawRect(look_.grid.Cell(current_).adjusted(3, 3, -4, -4));
}
