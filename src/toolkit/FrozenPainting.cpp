#include "toolkit/FrozenPainting.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace {

bool ChangesWhatIsSeen(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::InputMethod:
    case QEvent::Resize:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::Expose:
    case QEvent::Close:
    case QEvent::Hide:
      return true;
    default:
      return false;
  }
}

}  // namespace

FrozenPainting::FrozenPainting(QWidget *window) : QObject(window), window_(window) {}

void FrozenPainting::Freeze() {
  if (std::exchange(frozen_, true)) return;
  window_->repaint();
  window_->setUpdatesEnabled(false);
  qApp->installEventFilter(this);
}

void FrozenPainting::Free() {
  if (!std::exchange(frozen_, false)) return;
  qApp->removeEventFilter(this);
  window_->setUpdatesEnabled(true);
}

bool FrozenPainting::eventFilter(QObject *, QEvent *event) {
  if (ChangesWhatIsSeen(event->type())) Free();
  return false;
}
