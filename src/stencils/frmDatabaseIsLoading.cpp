#include "stencils/frmDatabaseIsLoading.h"

#include <QPainter>

#include "frame/mdiMain.h"
#include "toolkit/WindowOnTop.h"

frmDatabaseIsLoading::frmDatabaseIsLoading() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  setWindowFlag(Qt::FramelessWindowHint);
  // It comes by itself while the user works: it must neither close an open menu nor take a key.
  setWindowFlag(Qt::WindowDoesNotAcceptFocus);
  setAttribute(Qt::WA_ShowWithoutActivating);
}

void frmDatabaseIsLoading::Load() {
  resize(QSize(240, 90).expandedTo(minimumSizeHint()));
  SetWindowOnTop(*this, true);
}

// A raised border.
void frmDatabaseIsLoading::paintEvent(QPaintEvent *event) {
  DialogForm::paintEvent(event);
  QPainter painter(this);
  const int right = width() - 2;
  const int bottom = height() - 2;
  painter.setPen(Qt::white);
  painter.drawLine(0, 0, right, 0);
  painter.drawLine(0, 0, 0, bottom);
  painter.setPen(QColor(100, 100, 100));
  painter.drawLine(0, bottom, right, bottom);
  painter.drawLine(right, 0, right, bottom);
}
