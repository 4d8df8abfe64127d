#include "documents/frmMemoPad.h"

#include <QWindow>

#include "frame/PanelFont.h"
#include "frame/mdiMain.h"
#include "toolkit/Dialogs.h"
#include "toolkit/EndProgram.h"
#include "toolkit/WindowOnTop.h"

frmMemoPad::frmMemoPad() {
  setupUi(this);
  // Window managers keep only dialogs above another window.
  setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
}

void frmMemoPad::Load() {
  SetPanelFont(*txtMemoPad);
  winId();  // makes the window that the next line needs
  windowHandle()->setTransientParent(Default<mdiMain>()->windowHandle());
  SetWindowOnTop(*this, true);
}

bool frmMemoPad::QueryUnload(UnloadMode) {
  SetWindowOnTop(*this, false);
  if (Dialogs::Current().Message(QStringLiteral("Close Memo Pad Window and lose all data?"),
                                 Dialogs::Buttons::YesNo, Dialogs::Icon::None,
                                 QStringLiteral("Memo Pad Window Closing Message")) ==
      Dialogs::Answer::Yes) {
    return true;
  }
  SetWindowOnTop(*this, true);
  return false;
}

void frmMemoPad::Unloaded() {
  const Form *main = mForms::Find(QStringLiteral("mdiMain"));
  if (!main || main->IsUnloaded()) EndProgram();
}

void ShowMemoPad() {
  auto *pad = Default<frmMemoPad>();
  pad->show();
  SetWindowOnTop(*pad, true);
}
