#include "toolkit/WindowOnTop.h"

#include <QWidget>

void SetWindowOnTop(QWidget &window, bool onTop) {
  if (!onTop) return;
  window.raise();
  if (!window.testAttribute(Qt::WA_ShowWithoutActivating)) window.activateWindow();
}
