#include "frame/PanelFont.h"

#include <QWidget>

#include "frame/mPublic.h"

void SetFontSize(QWidget &widget, double points) {
  if (points <= 0) return;
  QFont font = widget.font();
  font.setPointSizeF(points);
  widget.setFont(font);
}

void SetPanelFont(QWidget &widget) {
  mPublic::ReadPreferences();
  SetFontSize(widget, PanelFontSize(mPublic::recPreferences));
}
