#pragma once

#include <QHash>
#include <QIcon>
#include <QString>
#include <QTreeWidget>
#include <QVector>
#include <memory>
#include <vector>

/// A tree whose nodes are reached by key or by their ordinal number in the order of adding,
/// 1-based. The tree owns its nodes.
class KeyedTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit KeyedTree(QWidget *parent = nullptr);

  /// Takes away all nodes.
  void ClearNodes();

  /// The pictures that SetImage counts, 1-based.
  void SetImageList(const QVector<QIcon> &images) { images_ = images; }

  /// Adds a node as the last child of the node with the parent key, or as a root if that is empty;
  /// collapsed, without picture. Null, and no node, if there is no such parent or the key is taken.
  /// A node may do without a key.
  QTreeWidgetItem *Add(const QString &parentKey, const QString &text, const QString &key = {});

  /// The same with a node that has its looks already, which costs the tree less than giving them
  /// later. The tree takes it over; it is gone where it couldn't be added.
  QTreeWidgetItem *Add(const QString &parentKey, std::unique_ptr<QTreeWidgetItem> node,
                       const QString &key = {});

  int NodeCount() const { return int(nodes_.size()); }
  QTreeWidgetItem *Node(int ordinal) const;        ///< null if there is none
  int Ordinal(const QTreeWidgetItem *node) const;  ///< 0 for a node that isn't in the tree
  /// Null if none is selected: a tree that gets the focus has a current node, but no selected one.
  QTreeWidgetItem *SelectedNode() const { return selectedItems().value(0); }
  QTreeWidgetItem *NodeByKey(const QString &key) const { return byKey_.value(key); }

  /// Gives a node the picture of that number; a number without a picture takes it away. A null node
  /// is skipped.
  void SetImage(QTreeWidgetItem *node, int image);

 Q_SIGNALS:
  /// A key was pressed in the tree, and the tree has followed it already.
  void KeyPressed();

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void changeEvent(QEvent *event) override;
  int sizeHintForColumn(int column) const override;

 private:
  void ExpandWhatIsThere();

  QVector<QIcon> images_;
  std::vector<QTreeWidgetItem *> nodes_;
  QHash<QString, QTreeWidgetItem *> byKey_;
  mutable int widest_ = 0;  ///< pixels that any row has asked for
};
