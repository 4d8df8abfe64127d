#include "stencils/frmQuickBar.h"

#include "documents/Insertion.h"
#include "frame/PanelFont.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "stencils/QuickBar.h"
#include "stencils/StencilFiles.h"
#include "toolkit/WindowOnTop.h"

frmQuickBar::frmQuickBar() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdPaste, &QPushButton::clicked, this, &frmQuickBar::cmdPaste_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmQuickBar::Load() {
  SetPanelFont(*cboQuickbar);
  QuickBarEntries = QuickBar::Keys(StencilFiles::ResolveDataFile(StencilFiles::QuickBar));
  cboQuickbar->addItems(
      QuickBar::Headers(StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt), QuickBarEntries));
  // The toolkit selects the first item that is added.
  cboQuickbar->setCurrentIndex(-1);
}

void frmQuickBar::Open() {
  auto *form = Default<frmQuickBar>();
  form->show();
  SetWindowOnTop(*form, true);
  if (form->cboQuickbar->count() >= 2) form->cboQuickbar->setCurrentIndex(0);
}

void frmQuickBar::cmdPaste_Click() {
  const int position = cboQuickbar->currentIndex();
  if (!mPublic::AnyEditorOpen() || position < 0) return;
  const auto stencil = StencilFiles::FindStencil(
      StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt), QuickBarEntries.value(position));
  if (stencil) Insertion::ReplaceSelection(stencil->HtmlSource.Trimmed());
}
