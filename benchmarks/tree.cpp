#include <QTreeWidget>

#include "Compare.h"
#include "documents/OpenFilesTree.h"
#include "documents/mEditors.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

// The same nodes in a bare tree, pumping as often.
void FillBare(QTreeWidget &tree, const QStringList &captions) {
  tree.clear();
  auto *root = new QTreeWidgetItem(&tree, {QStringLiteral("Editor Windows ( 100 open)")});
  QList<QTreeWidgetItem *> groups;
  for (const char *group :
       {"Markup Documents", "Java Documents", "Unsaved Documents", "Other Documents"}) {
    groups << new QTreeWidgetItem(root, {QString::fromLatin1(group)});
  }
  for (const QString &caption : captions) {
    new QTreeWidgetItem(groups[0], {caption});
    DoEvents();
  }
  root->setExpanded(true);
  groups[0]->setExpanded(true);
  DoEvents();
}

}  // namespace

void BenchTree() {
  QStringList captions;
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    if (!mPublic::aEditorState[slot].open) mEditors::OpenWindow();
    captions << QStringLiteral("/home/author/site/page%1.html").arg(slot);
    mEditors::aEditorWindow[slot]->SetCaption(captions.last());
  }
  QTreeWidget bare;
  bare.setHeaderHidden(true);
  bare.resize(Default<mdiMain>()->trwOpenFiles->size());
  bare.show();
  DoEvents();
  Compare(
      QStringLiteral("rebuilding the tree of 100 open files"), QStringLiteral("ms"), 3,
      [] { return Seconds(&RebuildOpenFilesTree) * 1000; },
      [&] { return Seconds([&] { FillBare(bare, captions); }) * 1000; });
}
