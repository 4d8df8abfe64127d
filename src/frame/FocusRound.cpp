#include "frame/FocusRound.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>
#include <algorithm>
#include <utility>

FocusRound::FocusRound(QWidget *window, std::vector<Stop> stops)
    : QObject(window), window_(window), stops_(std::move(stops)) {
  const auto key = [this](const QKeySequence &keys, int direction) {
    auto *shortcut = new QShortcut(keys, window_);
    connect(shortcut, &QShortcut::activated, this, [this, direction] { Go(direction); });
  };
  key(Qt::Key_F6, 1);
  key(Qt::SHIFT | Qt::Key_F6, -1);
  window->installEventFilter(this);
}

// The stop that has the keyboard, -1 if none has.
int FocusRound::Current() const {
  const QWidget *focus = QApplication::focusWidget();
  if (!focus) return -1;
  for (int stop = 0; stop < int(stops_.size()); ++stop) {
    const QWidget *widget = stops_[stop]();
    if (widget && (widget == focus || widget->isAncestorOf(focus))) return stop;
  }
  return -1;
}

bool FocusRound::TakeFocus(int stop) const {
  QWidget *widget = stops_[stop]();
  if (!widget || !widget->isVisible() || !widget->isEnabled()) return false;
  widget->setFocus(Qt::ShortcutFocusReason);
  return true;
}

void FocusRound::Go(int direction) {
  const int count = int(stops_.size());
  const int current = Current();
  // From outside the round the next stop is the first one, and the one before it the last.
  const int from = current < 0 && direction > 0 ? -1 : std::max(current, 0);
  for (int step = 1; step <= count; ++step) {
    if (TakeFocus(((from + step * direction) % count + count) % count)) return;
  }
}

// A key comes to the window when the control that has the keyboard has no use for it.
bool FocusRound::eventFilter(QObject *watched, QEvent *event) {
  if (watched != window_ || event->type() != QEvent::KeyPress) return false;
  return static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape && TakeFocus(0);
}
