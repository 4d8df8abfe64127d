#include "frame/ApplyPreferences.h"

#include "frame/Preferences.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"

namespace {

// A size that no font can have is refused without a word.
void SetFontSize(QWidget *widget, double points) {
  if (points <= 0) return;
  QFont font = widget->font();
  font.setPointSizeF(points);
  widget->setFont(font);
}

}  // namespace

void ApplyPreferences() {
  mPublic::ReadPreferences();
  const mdiMain &main = *Default<mdiMain>();
  const double size = PanelFontSize(mPublic::recPreferences);
  for (QWidget *panel :
       std::initializer_list<QWidget *>{main.trwOpenFiles, main.trwStencils,
                                        main.trwSelfBuildedStencils, main.lblTagDescription}) {
    SetFontSize(panel, size);
  }
  for (QWidget *title : {main.lblWindowTitelOpenFiles, main.lblWindowTitelStencilWindow,
                         main.lblWindowTitelTagDescription}) {
    SetFontSize(title, TitleFontSize(size));
  }
}
