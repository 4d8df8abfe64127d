#include "toolkit/KeyedTree.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QPersistentModelIndex>
#include <algorithm>

KeyedTree::KeyedTree(QWidget *parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setColumnCount(1);
  // Rows of one height spare the tree from measuring each of them.
  setUniformRowHeights(true);
  // A long text scrolls instead of being cut. Only the rows in view are measured.
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setResizeContentsPrecision(0);
}

void KeyedTree::ClearNodes() {
  nodes_.clear();
  byKey_.clear();
  widest_ = 0;
  clear();
}

QTreeWidgetItem *KeyedTree::Add(const QString &parentKey, const QString &text, const QString &key) {
  auto node = std::make_unique<QTreeWidgetItem>();
  node->setText(0, text);
  return Add(parentKey, std::move(node), key);
}

QTreeWidgetItem *KeyedTree::Add(const QString &parentKey, std::unique_ptr<QTreeWidgetItem> node,
                                const QString &key) {
  if (!key.isEmpty() && byKey_.contains(key)) return nullptr;
  QTreeWidgetItem *parent = parentKey.isEmpty() ? invisibleRootItem() : byKey_.value(parentKey);
  if (!parent) return nullptr;
  QTreeWidgetItem *added = node.release();
  parent->addChild(added);
  nodes_.push_back(added);
  if (!key.isEmpty()) byKey_.insert(key, added);
  return added;
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
  // The toolkit knows the menu key alone.
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    const QPoint middle = viewport()->rect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, viewport()->mapToGlobal(middle));
    QCoreApplication::sendEvent(this, &menu);
    return;
  }
  if (event->key() == Qt::Key_Asterisk) {
    ExpandWhatIsThere();
  } else {
    QTreeWidget::keyPressEvent(event);
  }
  Q_EMIT KeyPressed();
}

// The toolkit's way also opens what comes while it opens: where nodes read their children when they
// are opened, that is the whole disk.
void KeyedTree::ExpandWhatIsThere() {
  std::vector<QPersistentModelIndex> nodes{currentIndex()};
  for (size_t i = 0; i < nodes.size(); ++i) {
    const int children = model()->rowCount(nodes[i]);
    for (int row = 0; row < children; ++row) nodes.push_back(model()->index(row, 0, nodes[i]));
  }
  for (const QPersistentModelIndex &node : nodes) {
    if (node.isValid()) expand(node);
  }
}

void KeyedTree::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) widest_ = 0;
  QTreeWidget::changeEvent(event);
}

// Never less than before: a scroll bar that comes for a long row may cover it, and would go again
// for the rows that are left, and come again, without end.
int KeyedTree::sizeHintForColumn(int column) const {
  widest_ = std::max(widest_, QTreeWidget::sizeHintForColumn(column));
  return widest_;
}
