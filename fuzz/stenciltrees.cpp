// The tree that a file of stencils fills, node by node.

#include "Fuzz.h"
#include "stencils/FillStencilTree.h"
#include "stencils/StencilFiles.h"
#include "toolkit/KeyedTree.h"

void Try(Input &input) {
  const QString path = Path(StencilFiles::SelfBuilt);
  QByteArray bytes;
  while (input.remaining_bytes() > 0 && bytes.size() < 300'000) {
    bytes += TakeRecord<StencilRecord>(input, {100, 1500, 100, 750, 100, 100});
  }
  PutFile(path, bytes);
  static KeyedTree tree;
  tree.resize(200, 300);
  FillStencilTree(tree, path, QStringLiteral("Root"));
  Require(tree.NodeCount() <= StencilFiles::StencilCount(path) + 1, "a record is one node");
  for (int ordinal = 1; ordinal <= tree.NodeCount(); ++ordinal) {
    QTreeWidgetItem *node = tree.Node(ordinal);
    Require(tree.Ordinal(node) == ordinal, "a node has its number");
    tree.setCurrentItem(node);
    Require(tree.SelectedNode() == node, "every node can be selected");
    const QString key = StencilTag(node);
    Require(key.isEmpty() || key == StencilFiles::RootKey || StencilFiles::FindStencil(path, key),
            "a tag is a stencil's key");
  }
  tree.grab();
}
