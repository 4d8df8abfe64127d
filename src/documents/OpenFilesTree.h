#pragma once

#include <QObject>

class KeyedTree;

/// Makes the tree of open documents anew from the captions of the open slots, and pumps events for
/// each of them. Not entered while it runs: a call in the meantime makes it run once more at its
/// end.
void RebuildOpenFilesTree();

/// What trwOpenFiles does when the user clicks it. Owned by the tree.
class OpenFilesTreeHandlers : public QObject {
  Q_OBJECT

 public:
  explicit OpenFilesTreeHandlers(KeyedTree *tree);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Click();
  void DblClick();

  KeyedTree *tree_;
};
