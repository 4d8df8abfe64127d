#include "stencils/PanelFont.h"

#include <QWidget>

#include "frame/mPublic.h"

void SetPanelFont(QWidget &list) {
  mPublic::ReadPreferences();
  const double size = PanelFontSize(mPublic::recPreferences);
  if (size <= 0) return;
  QFont font = list.font();
  font.setPointSizeF(size);
  list.setFont(font);
}
