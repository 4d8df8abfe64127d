#include "stencils/frmTagDescription.h"

#include "frame/PanelFont.h"
#include "frame/mdiMain.h"
#include "toolkit/FocusMark.h"
#include "toolkit/WindowOnTop.h"

frmTagDescription::frmTagDescription() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  for (QWidget *box : std::initializer_list<QWidget *>{rtfTagSource, scrTagDescription}) {
    new FocusMark(box);
  }
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmTagDescription::Load() {
  SetWindowOnTop(*this, true);
}

void frmTagDescription::Show(const std::optional<StencilRecord> &stencil) {
  for (QWidget *text :
       std::initializer_list<QWidget *>{lblTagDescription, rtfTagSource, lblTagName}) {
    SetPanelFont(*text);
  }
  if (stencil) {
    lblTagName->setText(u' ' + stencil->TextCaption.Trimmed());
    rtfTagSource->setPlainText(stencil->HtmlSource.Trimmed());
    lblTagDescription->setText(stencil->Description.Trimmed());
  }
  setWindowModality(Qt::ApplicationModal);
  show();
}
