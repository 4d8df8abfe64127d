#include "toolkit/EndProgram.h"

#include <QApplication>
#include <QWidget>

namespace {
std::function<void()> replacement;
}

void EndProgram() {
  if (replacement) return replacement();
  const auto windows = QApplication::topLevelWidgets();
  for (QWidget *window : windows) window->hide();
  QCoreApplication::exit(0);
}

void SetEndProgram(std::function<void()> end) {
  replacement = std::move(end);
}
