#include "frame/ApplyPreferences.h"

#include "frame/PanelFont.h"
#include "frame/Preferences.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"

void ApplyPreferences() {
  mPublic::ReadPreferences();
  const mdiMain &main = *Default<mdiMain>();
  const double size = PanelFontSize(mPublic::recPreferences);
  for (QWidget *panel :
       std::initializer_list<QWidget *>{main.trwOpenFiles, main.trwStencils,
                                        main.trwSelfBuildedStencils, main.lblTagDescription}) {
    SetFontSize(*panel, size);
  }
  for (QWidget *title : {main.lblWindowTitelOpenFiles, main.lblWindowTitelStencilWindow,
                         main.lblWindowTitelTagDescription}) {
    SetFontSize(*title, TitleFontSize(size));
  }
}
