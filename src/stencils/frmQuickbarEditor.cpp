#include "stencils/frmQuickbarEditor.h"

#include <QFile>

#include "frame/PanelFont.h"
#include "frame/mdiMain.h"
#include "stencils/QuickBar.h"
#include "stencils/StencilFiles.h"
#include "toolkit/DoEvents.h"

frmQuickbarEditor::frmQuickbarEditor() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdDeleteThisEntry, &QPushButton::clicked, this,
          &frmQuickbarEditor::cmdDeleteThisEntry_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmQuickbarEditor::Load() {
  SetPanelFont(*lstQuickBarEntries);
  ReloadQuickbarEditorList();
}

void frmQuickbarEditor::ReloadQuickbarEditorList() {
  lstQuickBarEntries->clear();
  lstQuickBarEntries->addItems(
      QuickBar::Headers(StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt),
                        QuickBar::Keys(StencilFiles::ResolveDataFile(StencilFiles::QuickBar))));
}

// Not the current row: the toolkit makes the first one current, unselected, when the list gets the
// focus.
int frmQuickbarEditor::SelectedPosition() const {
  const auto selected = lstQuickBarEntries->selectionModel()->selectedRows();
  return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void frmQuickbarEditor::cmdDeleteThisEntry_Click() {
  // A disabled button passes the focus on, and the next press of a key would close the dialog.
  const bool hadFocus = focusWidget() == cmdDeleteThisEntry;
  cmdDeleteThisEntry->setEnabled(false);
  const int position = SelectedPosition();
  const QString quickBar = StencilFiles::ResolveDataFile(StencilFiles::QuickBar);
  if (QuickBarFile(quickBar).Count() == 0) {
    lstQuickBarEntries->clear();
    QFile::remove(quickBar);
    return;
  }
  const QStringList keys = QuickBar::Keys(quickBar);
  if (position >= 0 && position < keys.size()) {
    QuickBar::Remove(quickBar, StencilFiles::ResolveDataFile(StencilFiles::Scratch),
                     keys[position]);
  }
  DoEvents();
  if (IsUnloaded()) return;
  ReloadQuickbarEditorList();
  lstQuickBarEntries->setCurrentRow(position);
  cmdDeleteThisEntry->setEnabled(true);
  if (hadFocus) cmdDeleteThisEntry->setFocus();
}
