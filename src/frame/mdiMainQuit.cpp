// The two ways of quitting. They differ in which forms they unload and in what they delete; the
// difference is deliberate.

#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "java/JavaCommands.h"
#include "toolkit/Dialogs.h"
#include "toolkit/EndProgram.h"

namespace {

bool AskWhetherToExit() {
  return Dialogs::Current().Message(
             QStringLiteral("Do you want to exit?"), Dialogs::Buttons::YesNo, Dialogs::Icon::None,
             QStringLiteral("nimbara works tagwright - v1.100")) == Dialogs::Answer::Yes;
}

void UnloadToolForms() {
  mForms::UnloadDefaults({"frmStart", "frmSelfStencilBuilder", "frmSearch", "frmPreferences",
                          "frmMetaTags", "frmMemoPad", "frmInsertTable", "frmInsertList",
                          "frmInsertLink", "frmInfo", "frmImageViewer", "frmFontcolors",
                          "frmStencils", "frmColors"});
}

// Each window asks about its own changes. Cancel there doesn't stop the quit.
void UnloadEditors() {
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    if (!mPublic::aEditorState[slot].open) continue;
    mPublic::aEditorState[slot].open = false;
    if (frmHTMLChild *editor = mEditors::aEditorWindow[slot]) Unload(*editor);
  }
}

}  // namespace

bool mdiMain::QueryUnload(UnloadMode mode) {
  if (mPublic::bAppClosing) {
    EndProgram();
    return true;
  }
  if (!AskWhetherToExit()) {
    mPublic::bAppClosing = false;
    return false;
  }
  mPublic::bAppClosing = true;
  UnloadToolForms();
  mForms::UnloadDefaults({"frmQuickBar", "frmDebuggingInfo"});
  UnloadEditors();
  JavaCommands::DeleteCompilerOutput();
  if (mode == UnloadMode::TaskManager) EndProgram();
  return true;
}

void mdiMain::Unloaded() {
  // A handler that is still on the stack and asks for the main window gets this one, not a second.
  mForms::Remember(QStringLiteral("mdiMain"), this);
  // A memo pad that the user keeps is the program's last window and ends the program itself.
  if (!mForms::Find(QStringLiteral("frmMemoPad"))) EndProgram();
}

void mdiMain::mnuFileQuit_Click() {
  if (!AskWhetherToExit()) return;
  mPublic::bAppClosing = true;
  UnloadToolForms();
  UnloadEditors();
  EndProgram();
}
