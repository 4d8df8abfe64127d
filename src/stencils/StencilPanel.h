#pragma once

#include <QObject>

class KeyedTree;
class mdiMain;

/// The stencils in the main window: the two trees in one place with their tabs, the description of
/// the selected one below, and the insertion of a source into the active document. Owned by the
/// main window.
class StencilPanel : public QObject {
  Q_OBJECT

 public:
  enum Tree { StandardTree = 0, SelfBuiltTree = 1 };
  enum Mode { HelpText = 1, HtmlSource = 2 };

  explicit StencilPanel(mdiMain *main);

  /// Shows the help text or the source of the node that is selected in a tree; nothing for a root.
  void ShowStencilText(Mode mode, Tree tree);

  /// Shows the selected stencil of the tree used last in a window of its own.
  void ShowLarge();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  KeyedTree &TreeOf(Tree tree) const;
  bool HandleTreeEvent(Tree tree, QEvent &event);
  void SelectNode(Tree tree);
  void InsertStencilSource(Tree tree);
  void TurnTo(Tree tree);
  void TurnDescription(Mode mode);

  mdiMain *main_;
  Tree lastUsed_ = StandardTree;
  Mode mode_ = HelpText;
};
