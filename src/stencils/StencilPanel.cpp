#include "stencils/StencilPanel.h"

#include <QContextMenuEvent>
#include <QMouseEvent>

#include "documents/Insertion.h"
#include "documents/mEditors.h"
#include "frame/RedrawToolStripCells.h"
#include "frame/mdiMain.h"
#include "stencils/FillStencilTree.h"
#include "stencils/StencilFiles.h"
#include "stencils/frmTagDescription.h"
#include "toolkit/UntrappedError.h"

namespace {

QString PathOf(StencilPanel::Tree tree) {
  return tree == StencilPanel::StandardTree
             ? StencilFiles::StandardPath()
             : StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt);
}

// A file of self-built stencils that holds exactly one gives that one, whatever is selected.
std::optional<StencilRecord> StencilToInsert(StencilPanel::Tree tree, const QString &path,
                                             const QString &key) {
  if (tree == StencilPanel::SelfBuiltTree && StencilFiles::StencilCount(path) == 1) {
    StencilRecord only;
    if (StencilFile(path).Get(1, only)) return only;
  }
  return StencilFiles::FindStencil(path, key);
}

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::ContextMenu:
    case QEvent::KeyRelease:
      return true;
    default:
      return false;
  }
}

}  // namespace

StencilPanel::StencilPanel(mdiMain *main) : QObject(main), main_(main) {
  main->picStencilsTab->SetTabs({{QStringLiteral("     html   "), QStringLiteral("     html   ")},
                                 {QStringLiteral("self builded"), QStringLiteral("self builded")}});
  main->picTagDescription->SetTabs(
      {{QStringLiteral("     help text"), QStringLiteral("     help text")},
       {QStringLiteral("     html source"), QStringLiteral("    html source")}});
  TurnTo(StandardTree);
  connect(main->picStencilsTab, &DrawnTabStrip::TabPressed, this, [this](int tab) {
    main_->SetTitlebarColor(2);
    TurnTo(tab == 1 ? StandardTree : SelfBuiltTree);
  });
  connect(main->picStencilsTab, &DrawnTabStrip::Resized, this,
          [this] { main_->picStencilsTab->SetActiveTab(1 + main_->trwStencils->isHidden()); });
  connect(main->picTagDescription, &DrawnTabStrip::TabPressed, this,
          [this](int tab) { TurnDescription(Mode(tab)); });
  connect(main->cmdTagDescriptionLarge, &QPushButton::clicked, this, &StencilPanel::ShowLarge);
  for (KeyedTree *tree : {main->trwStencils, main->trwSelfBuildedStencils}) {
    tree->installEventFilter(this);
    tree->viewport()->installEventFilter(this);
    tree->viewport()->setMouseTracking(true);
  }
}

KeyedTree &StencilPanel::TreeOf(Tree tree) const {
  return tree == StandardTree ? *main_->trwStencils : *main_->trwSelfBuildedStencils;
}

// ---- the trees

bool StencilPanel::eventFilter(QObject *watched, QEvent *event) {
  // Other events come also while the trees are being destroyed.
  if (!IsInput(event->type())) return false;
  for (const Tree tree : {StandardTree, SelfBuiltTree}) {
    const KeyedTree &box = TreeOf(tree);
    if (watched == &box || watched == box.viewport()) return HandleTreeEvent(tree, *event);
  }
  return false;
}

// Whether the event goes no further. A right or middle press must not select what it hits: the node
// that counts is the selected one.
bool StencilPanel::HandleTreeEvent(Tree tree, QEvent &event) {
  const auto isLeft = [&event] {
    return static_cast<QMouseEvent &>(event).button() == Qt::LeftButton;
  };
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return !isLeft();
    case QEvent::MouseButtonRelease:
      lastUsed_ = tree;
      if (isLeft()) {
        SelectNode(tree);
        return false;
      }
      InsertStencilSource(tree);
      return true;
    case QEvent::ContextMenu:
      // The menu key is the keyboard's right button.
      if (static_cast<QContextMenuEvent &>(event).reason() != QContextMenuEvent::Keyboard) break;
      InsertStencilSource(tree);
      return true;
    case QEvent::KeyRelease:
      SelectNode(tree);
      break;
    case QEvent::MouseMove:
      RedrawToolStripCells();
      break;
    default:
      break;
  }
  return false;
}

void StencilPanel::SelectNode(Tree tree) {
  lastUsed_ = tree;
  ShowStencilText(mode_, tree);
}

void StencilPanel::ShowStencilText(Mode mode, Tree tree) {
  const QString key = StencilTag(TreeOf(tree).SelectedNode());
  const auto stencil = StencilFiles::FindStencil(PathOf(tree), key);
  QString text;
  if (stencil)
    text = (mode == HelpText ? stencil->Description.Trimmed() : stencil->HtmlSource.Trimmed());
  main_->lblTagDescription->setText(text);
}

void StencilPanel::InsertStencilSource(Tree tree) {
  lastUsed_ = tree;
  frmHTMLChild *editor = mEditors::Active();
  if (!editor) return;
  const QString path = PathOf(tree);
  if (tree == StandardTree && !ReadableOrTold(path)) return;
  const auto stencil = StencilToInsert(tree, path, StencilTag(TreeOf(tree).SelectedNode()));
  Insertion::PutInFront(stencil ? stencil->HtmlSource.Trimmed() : QString());
  editor->txthtml->setFocus();
}

// ---- the tabs

void StencilPanel::TurnTo(Tree tree) {
  TreeOf(tree).show();
  TreeOf(tree == StandardTree ? SelfBuiltTree : StandardTree).hide();
  main_->picStencilsTab->SetActiveTab(tree == StandardTree ? 1 : 2);
}

void StencilPanel::TurnDescription(Mode mode) {
  mode_ = mode;
  main_->picTagDescription->SetActiveTab(int(mode));
  ShowStencilText(mode, lastUsed_);
}

void StencilPanel::ShowLarge() {
  main_->picTagDescription->setFocus();
  main_->SetTitlebarColor(4);
  const KeyedTree &tree = TreeOf(lastUsed_);
  if (tree.NodeCount() < 2) {
    mForms::UnloadDefaults({"frmTagDescription"});
    return;
  }
  auto *form = Default<frmTagDescription>();
  form->Show(StencilFiles::FindStencil(PathOf(lastUsed_), StencilTag(tree.SelectedNode())));
}
