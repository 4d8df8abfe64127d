#include "toolkit/EndProgram.h"

#include <QApplication>
#include <QWidget>

namespace {
std::function<void()> replacement;
bool ended = false;
}  // namespace

void EndProgram() {
  if (replacement) return replacement();
  const auto windows = QApplication::topLevelWidgets();
  for (QWidget *window : windows) window->hide();
  ended = true;
  QCoreApplication::exit(0);
}

int RunProgram() {
  return ended ? 0 : QCoreApplication::exec();
}

void SetEndProgram(std::function<void()> end) {
  replacement = std::move(end);
}
