#include "toolkit/FocusMark.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionFocusRect>
#include <QWidget>

FocusMark::FocusMark(QWidget *widget) : QObject(widget) {
  widget->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject *watched, QEvent *event) {
  auto *widget = static_cast<QWidget *>(watched);
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) widget->update();
  if (event->type() != QEvent::Paint || painting_ || !widget->hasFocus()) return false;
  const QScopedValueRollback<bool> painting(painting_, true);
  QCoreApplication::sendEvent(widget, event);
  QPainter painter(widget);
  QStyleOptionFocusRect option;
  option.initFrom(widget);
  option.state |= QStyle::State_KeyboardFocusChange;
  widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget);
  return true;
}
