#include "stencils/FillStencilTree.h"

#include <QPointer>

#include "base/mText.h"
#include "frame/mdiMain.h"
#include "stencils/StencilFiles.h"
#include "toolkit/KeyedTree.h"

namespace {

constexpr int leafImage = 2;
constexpr int sectionImage = 4;

std::unique_ptr<QTreeWidgetItem> NodeOf(const QString &text) {
  auto node = std::make_unique<QTreeWidgetItem>();
  node->setText(0, text);
  return node;
}

void Mark(KeyedTree &tree, QTreeWidgetItem &node, const QString &key, int image) {
  node.setData(0, Qt::UserRole, key);
  tree.SetImage(&node, image);
}

}  // namespace

void FillStencilTree(KeyedTree &tree, const QString &path, const QString &rootText,
                     const std::function<bool()> &goOn) {
  const QPointer<KeyedTree> alive(&tree);
  tree.ClearNodes();
  tree.SetImageList(mdiMain::TreeImages());
  auto root = NodeOf(rootText);
  Mark(tree, *root, StencilFiles::RootKey, sectionImage);
  tree.Add({}, std::move(root), StencilFiles::RootKey);
  int counter = 1;
  StencilFile(path).Scan(1, [&](qint64, const StencilRecord &record) {
    if (goOn && (!goOn() || !alive)) return false;
    const QString key = record.Key.Trimmed();
    if (key.isEmpty()) return true;
    ++counter;
    auto node = NodeOf(record.Header.Trimmed());
    // Once a record couldn't be added, the counter is ahead of the nodes and stays so.
    if (counter == tree.NodeCount() + 1) {
      const bool isSection = record.HtmlSource.IsBlank();
      Mark(tree, *node, key, isSection ? sectionImage : leafImage);
    }
    const QString parent = record.ParentKey.Trimmed();
    if (!parent.isEmpty()) tree.Add(parent, std::move(node), key);
    return true;
  });
}

QString StencilTag(const QTreeWidgetItem *node) {
  return node ? mText::Trim(node->data(0, Qt::UserRole).toString()) : QString();
}
