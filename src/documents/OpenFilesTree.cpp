#include "documents/OpenFilesTree.h"

#include <QEvent>
#include <QPointer>

#include "base/mText.h"
#include "documents/DocumentName.h"
#include "documents/mEditors.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"
#include "toolkit/KeyedTree.h"
#include "toolkit/OneAtATime.h"

namespace {

constexpr int rootWithDocuments = 1;
constexpr int documentLook = 2;
constexpr int rootWithoutDocuments = 3;

void AddGroups(KeyedTree &tree) {
  const QString root = QStringLiteral("aa");
  tree.Add({},
           QStringLiteral("Editor Windows (%1 open)").arg(mText::Str(mPublic::CountOpenEditors())),
           root);
  tree.Add(root, QStringLiteral("Markup Documents"), QStringLiteral("aaaa"));
  tree.Add(root, QStringLiteral("Java Documents"), QStringLiteral("aabb"));
  tree.Add(root, QStringLiteral("Unsaved Documents"), QStringLiteral("aacc"));
  tree.Add(root, QStringLiteral("Other Documents"), QStringLiteral("aadd"));
}

void OpenUp(KeyedTree &tree) {
  QTreeWidgetItem *root = tree.Node(1);
  root->setExpanded(true);
  for (int i = 0; i < root->childCount(); ++i) {
    root->child(i)->setExpanded(root->child(i)->childCount() > 0);
  }
}

void RebuildOnce(KeyedTree &tree) {
  tree.ClearNodes();
  tree.SetImageList(mdiMain::TreeImages());
  AddGroups(tree);
  bool found = false;
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    const frmHTMLChild *editor = mEditors::aEditorWindow[slot];
    if (!mPublic::aEditorState[slot].open || !editor) continue;
    found = true;
    tree.Add(DocumentName::GroupKey(editor->Caption()), editor->Caption());
    // Not the document's own node: counting all nodes is how the groups get their look.
    const int ordinal = slot + 1;
    if (QTreeWidgetItem *node = tree.Node(ordinal)) node->setData(0, Qt::ForegroundRole, {});
    DoEvents();
    tree.SetImage(tree.Node(ordinal), documentLook);
  }
  tree.SetImage(tree.Node(1), found ? rootWithDocuments : rootWithoutDocuments);
  OpenUp(tree);
  tree.scrollToItem(tree.Node(tree.NodeCount()));
  tree.setCurrentItem(tree.Node(1));
  DoEvents();
}

}  // namespace

void RebuildOpenFilesTree() {
  static OneAtATime rebuild;
  const QPointer<KeyedTree> tree = Default<mdiMain>()->trwOpenFiles;
  rebuild.Run([&tree] {
    if (tree) RebuildOnce(*tree);
  });
}

OpenFilesTreeHandlers::OpenFilesTreeHandlers(KeyedTree *tree) : QObject(tree), tree_(tree) {
  // Not the signal of a clicked node: the arrow that opens and closes one gives none.
  tree->viewport()->installEventFilter(this);
  connect(tree, &QTreeWidget::itemDoubleClicked, this, &OpenFilesTreeHandlers::DblClick);
}

bool OpenFilesTreeHandlers::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonRelease) Click();
  return QObject::eventFilter(watched, event);
}

void OpenFilesTreeHandlers::Click() {
  QTreeWidgetItem *root = tree_->Node(1);
  if (root) tree_->SetImage(root, root->isExpanded() ? rootWithDocuments : rootWithoutDocuments);
}

void OpenFilesTreeHandlers::DblClick() {
  const QTreeWidgetItem *node = tree_->currentItem();
  if (!node) return;
  const QString sought = mText::Trim(node->text(0));
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    frmHTMLChild *editor = mEditors::aEditorWindow[slot];
    if (!mPublic::aEditorState[slot].open || !editor) continue;
    if (mText::Trim(editor->Caption()) != sought || DocumentName::IsUnsaved(sought)) continue;
    mEditors::BringToTop(*editor);
    return;
  }
}
