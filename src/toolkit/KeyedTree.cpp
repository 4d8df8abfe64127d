#include "toolkit/KeyedTree.h"

#include <algorithm>

KeyedTree::KeyedTree(QWidget *parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setColumnCount(1);
  // Rows of one height spare the tree from measuring each of them.
  setUniformRowHeights(true);
}

void KeyedTree::ClearNodes() {
  nodes_.clear();
  byKey_.clear();
  clear();
}

QTreeWidgetItem *KeyedTree::Add(const QString &parentKey, const QString &text, const QString &key) {
  if (!key.isEmpty() && byKey_.contains(key)) return nullptr;
  QTreeWidgetItem *parent = parentKey.isEmpty() ? invisibleRootItem() : byKey_.value(parentKey);
  if (!parent) return nullptr;
  auto *node = new QTreeWidgetItem;
  node->setText(0, text);
  parent->addChild(node);
  nodes_.push_back(node);
  if (!key.isEmpty()) byKey_.insert(key, node);
  return node;
}

QTreeWidgetItem *KeyedTree::Node(int ordinal) const {
  return ordinal >= 1 && ordinal <= NodeCount() ? nodes_[ordinal - 1] : nullptr;
}

int KeyedTree::Ordinal(const QTreeWidgetItem *node) const {
  const auto found = std::find(nodes_.begin(), nodes_.end(), node);
  return found == nodes_.end() ? 0 : int(found - nodes_.begin()) + 1;
}

void KeyedTree::SetImage(QTreeWidgetItem *node, int image) {
  if (node) node->setIcon(0, images_.value(image - 1));
}

void KeyedTree::keyPressEvent(QKeyEvent *event) {
  QTreeWidget::keyPressEvent(event);
  Q_EMIT KeyPressed();
}
