#include "stencils/frmStencils.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include "frame/PanelFont.h"
#include "frame/mdiMain.h"
#include "stencils/FillStencilTree.h"
#include "stencils/LoadStencilTrees.h"
#include "stencils/StencilFiles.h"
#include "stencils/frmStencilsSearch.h"
#include "toolkit/DoEvents.h"

frmStencils::frmStencils() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdMarker, &QPushButton::clicked, this, &frmStencils::cmdMarker_Click);
  connect(cmdFind, &QPushButton::clicked, this, [] { Default<frmStencilsSearch>()->show(); });
  connect(cmdOk, &QPushButton::clicked, this, &frmStencils::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmStencils::Load() {
  const QPointer<frmStencils> self(this);
  BehindWaitWindow([this, &self] {
    FillStencilTree(*trwStencils, StencilFiles::StandardPath(), standardStencils, [&self] {
      DoEventsInLoop();
      return self && !self->IsUnloaded();
    });
  });
  if (self && !IsUnloaded()) SetPanelFont(*trwStencils);
}

void frmStencils::Unloaded() {
  mForms::UnloadDefaults({"frmStencilsSearch"});
}

// Both trees are filled from one file in one order, so a node's number is the link.
void frmStencils::cmdMarker_Click() {
  KeyedTree &tree = *Default<mdiMain>()->trwStencils;
  if (QTreeWidgetItem *node = tree.Node(trwStencils->Ordinal(trwStencils->SelectedNode()))) {
    tree.setCurrentItem(node);
  }
}

void frmStencils::cmdOk_Click() {
  const auto stencil = StencilFiles::FindStencil(StencilFiles::StandardPath(),
                                                 StencilTag(trwStencils->SelectedNode()));
  QGuiApplication::clipboard()->clear();
  if (!stencil) return;
  // Other programs show a CR as a stray character, so the clipboard has lone LFs.
  QGuiApplication::clipboard()->setText(
      stencil->HtmlSource.Trimmed().replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}
