#include "stencils/FillStencilTree.h"

#include <QPointer>

#include "base/mText.h"
#include "frame/mdiMain.h"
#include "stencils/StencilFiles.h"
#include "toolkit/KeyedTree.h"

namespace {

constexpr int leafImage = 2;
constexpr int sectionImage = 4;

void Mark(KeyedTree &tree, int ordinal, const QString &key, int image) {
  QTreeWidgetItem *node = tree.Node(ordinal);
  if (!node) return;
  node->setData(0, Qt::UserRole, key);
  tree.SetImage(node, image);
}

}  // namespace

void FillStencilTree(KeyedTree &tree, const QString &path, const QString &rootText,
                     const std::function<bool()> &goOn) {
  const QPointer<KeyedTree> alive(&tree);
  tree.ClearNodes();
  tree.SetImageList(mdiMain::TreeImages());
  int counter = 1;
  tree.Add({}, rootText, StencilFiles::RootKey);
  Mark(tree, counter, StencilFiles::RootKey, sectionImage);
  StencilFile(path).Scan(1, [&](qint64, const StencilRecord &record) {
    if (goOn && (!goOn() || !alive)) return false;
    const QString key = record.Key.Trimmed();
    if (key.isEmpty()) return true;
    ++counter;
    const QString parent = record.ParentKey.Trimmed();
    if (!parent.isEmpty()) tree.Add(parent, record.Header.Trimmed(), key);
    Mark(tree, counter, key, record.HtmlSource.TrimmedBytes().isEmpty() ? sectionImage : leafImage);
    return true;
  });
}

QString StencilTag(const QTreeWidgetItem *node) {
  return node ? mText::Trim(node->data(0, Qt::UserRole).toString()) : QString();
}
