#include "stencils/frmStencilsSearch.h"

#include <QPointer>

#include "base/mText.h"
#include "stencils/FillStencilTree.h"
#include "stencils/StencilFiles.h"
#include "stencils/StencilSearch.h"
#include "stencils/frmStencils.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"
#include "toolkit/UntrappedError.h"

frmStencilsSearch::frmStencilsSearch() : DialogForm(Default<frmStencils>()) {
  setupUi(this);
  connect(cmdSearch, &QPushButton::clicked, this, &frmStencilsSearch::cmdSearch_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
  connect(txtSearchString, &QLineEdit::textChanged, this, [this] { nextRecord_ = 1; });
}

void frmStencilsSearch::Load() {
  raise();
}

void frmStencilsSearch::EnableButtons(bool enabled) {
  cmdSearch->setEnabled(enabled);
  cmdCancel->setEnabled(enabled);
}

void frmStencilsSearch::cmdSearch_Click() {
  const QPointer<frmStencilsSearch> self(this);
  const auto stands = [&self] { return self && !self->IsUnloaded(); };
  EnableButtons(false);
  const QString path = StencilFiles::StandardPath();
  if (!ReadableOrTold(path)) return;
  const auto sensitivity = chkMatchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
  const auto hit = SearchStencils(path, mText::Trim(txtSearchString->text()), sensitivity,
                                  nextRecord_, [&stands] {
                                    DoEventsInLoop();
                                    return stands();
                                  });
  if (!stands()) return;
  if (hit) {
    nextRecord_ = hit->record + 1;
    Select(hit->key, hit->parentKey);
  } else {
    Dialogs::Current().Message(QStringLiteral("Phrase was not found (again)"), Dialogs::Buttons::Ok,
                               Dialogs::Icon::None, QStringLiteral("Stencils Search"));
    if (!stands()) return;
    nextRecord_ = 1;
  }
  EnableButtons(true);
  cmdSearch->setFocus();
}

// The root is a node too, so the walk over as many nodes as there are records misses the last one.
void frmStencilsSearch::Select(const QString &key, const QString &parentKey) {
  KeyedTree &tree = *Default<frmStencils>()->trwStencils;
  const qint64 count = StencilFiles::StencilCount(StencilFiles::StandardPath());
  for (int ordinal = 1; ordinal <= count && ordinal <= tree.NodeCount(); ++ordinal) {
    QTreeWidgetItem *node = tree.Node(ordinal);
    const QString tag = StencilTag(node);
    if (tag == parentKey) node->setExpanded(true);
    if (tag != key) continue;
    node->setExpanded(true);
    tree.setCurrentItem(node);
    return;
  }
}
