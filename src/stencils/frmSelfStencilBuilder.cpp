#include "stencils/frmSelfStencilBuilder.h"

#include <QPointer>

#include "base/mAnsi.h"
#include "base/mText.h"
#include "frame/PanelFont.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "stencils/FillStencilTree.h"
#include "stencils/LoadStencilTrees.h"
#include "stencils/QuickBar.h"
#include "stencils/StencilFiles.h"
#include "stencils/mStencilBuilder.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"
#include "toolkit/twips.h"

namespace {

// The limit of a key that it was once meant to have; a key's field is shorter.
constexpr int longestParentKey = 224;

const QString messageTitle = QStringLiteral("Self Stencil Builder Message");

// Freezes the painting of a widget if the user wants a fast load.
class LockedPainting {
 public:
  explicit LockedPainting(QWidget *widget) {
    mPublic::ReadPreferences();
    if (!mPublic::recPreferences.ForceDatabaseLoading) return;
    locked_ = widget;
    locked_->setUpdatesEnabled(false);
  }
  ~LockedPainting() {
    if (locked_) locked_->setUpdatesEnabled(true);
  }
  LockedPainting(const LockedPainting &) = delete;
  LockedPainting &operator=(const LockedPainting &) = delete;

 private:
  QPointer<QWidget> locked_;
};

QString SelfBuiltPath() {
  return StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt);
}

void Tell(const QString &text, Dialogs::Icon icon, const QString &title) {
  Dialogs::Current().Message(text, Dialogs::Buttons::Ok, icon, title);
}

bool Ask(const QString &text, const QString &title) {
  return Dialogs::Current().Message(text, Dialogs::Buttons::YesNo, Dialogs::Icon::None, title) ==
         Dialogs::Answer::Yes;
}

bool IsGone(const QPointer<frmSelfStencilBuilder> &form) {
  return !form || form->IsUnloaded();
}

}  // namespace

frmSelfStencilBuilder::frmSelfStencilBuilder() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  setModal(true);
  QFont courier;
  courier.setFamilies({QStringLiteral("Courier"), QStringLiteral("Courier New")});
  courier.setStyleHint(QFont::TypeWriter);
  txthtmlSource->setFont(courier);
  trwStencils->viewport()->installEventFilter(this);
  connect(trwStencils, &KeyedTree::KeyPressed, this, &frmSelfStencilBuilder::trwStencils_Click);
  connect(cboHirarchieSteps, &QComboBox::activated, this,
          &frmSelfStencilBuilder::cboHirarchieSteps_Click);
  connect(cmdSave, &QPushButton::clicked, this, &frmSelfStencilBuilder::cmdSave_Click);
  connect(cmdOverwriteSelection, &QPushButton::clicked, this,
          &frmSelfStencilBuilder::cmdOverwriteSelection_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmSelfStencilBuilder::cmdDelete_Click);
  connect(cmdAddtoQuick, &QPushButton::clicked, this, &frmSelfStencilBuilder::cmdAddtoQuick_Click);
  connect(cmdOk, &QPushButton::clicked, this, &frmSelfStencilBuilder::cmdOk_Click);
}

void frmSelfStencilBuilder::Load() {
  const QPointer<frmSelfStencilBuilder> self(this);
  move(twips(15), twips(15));
  for (QWidget *widget : std::initializer_list<QWidget *>{trwStencils, txtDescription, txtHeader,
                                                          txthtmlSource, txtTextCaption}) {
    SetPanelFont(*widget);
  }
  BehindWaitWindow([this, &self] {
    if (IsGone(self)) return;
    const LockedPainting locked(trwStencils);
    if (ReloadBuilderTree() < 1) cboHirarchieSteps->addItem(QStringLiteral("none"));
  });
  if (!IsGone(self)) show();
}

// ---- the tree

// How many records the file holds; less than 1, too, if the form has gone on the way.
qint64 frmSelfStencilBuilder::ReloadBuilderTree() {
  const QPointer<frmSelfStencilBuilder> self(this);
  FillStencilTree(*trwStencils, SelfBuiltPath(), selfBuildedStencils, [&self] {
    DoEventsInLoop();
    return !IsGone(self);
  });
  DoEvents();
  if (IsGone(self)) return 0;
  const qint64 count = StencilFiles::StencilCount(SelfBuiltPath());
  QStringList steps;
  for (qint64 step = 1; step <= count; ++step) steps << QString::number(step);
  cboHirarchieSteps->clear();
  cboHirarchieSteps->addItems(steps);
  // The choice of the first one is a choice like the user's.
  cboHirarchieSteps_Click();
  return count;
}

// False if the form has gone meanwhile.
bool frmSelfStencilBuilder::ReloadAndReselect() {
  const QPointer<frmSelfStencilBuilder> self(this);
  {
    const LockedPainting locked(trwStencils);
    ReloadBuilderTree();
  }
  DoEvents();
  if (IsGone(self)) return false;
  Reselect(lastClicked_);
  return true;
}

void frmSelfStencilBuilder::Reselect(int ordinal) {
  QTreeWidgetItem *node = trwStencils->Node(ordinal);
  if (!node) return;
  node->setExpanded(true);
  trwStencils->setCurrentItem(node);
}

bool frmSelfStencilBuilder::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonRelease) trwStencils_Click();
  return DialogForm::eventFilter(watched, event);
}

void frmSelfStencilBuilder::trwStencils_Click() {
  const QTreeWidgetItem *node = trwStencils->SelectedNode();
  if (!node) return;
  const QByteArray key = mAnsi::ToAnsi(StencilTag(node));
  // Where several records have the key, the last one shows.
  std::optional<StencilRecord> shown;
  StencilFile(SelfBuiltPath()).Scan(1, [&](qint64, const StencilRecord &record) {
    if (record.Key.TrimmedBytes() == key) shown = record;
    return true;
  });
  if (shown) {
    txtDescription->SetText(shown->Description.Trimmed());
    txtHeader->setText(shown->Header.Trimmed());
    txthtmlSource->SetText(shown->HtmlSource.Trimmed());
    txtTextCaption->setText(shown->TextCaption.Trimmed());
  }
  lastClicked_ = trwStencils->Ordinal(node);
}

void frmSelfStencilBuilder::cboHirarchieSteps_Click() {
  const int count = cboHirarchieSteps->currentText().toInt();
  for (int ordinal = 1; ordinal <= count; ++ordinal) {
    if (QTreeWidgetItem *node = trwStencils->Node(ordinal)) node->setExpanded(true);
  }
}

// ---- changes

// Nothing else can be begun while a change lets events run.
void frmSelfStencilBuilder::EnableChanges(bool enabled) {
  for (QWidget *widget : std::initializer_list<QWidget *>{
           cmdAddtoQuick, cmdSave, cmdOverwriteSelection, cmdDelete, trwStencils}) {
    widget->setEnabled(enabled);
  }
}

void frmSelfStencilBuilder::FillTexts(StencilRecord &record) const {
  record.Header.Set(mText::Trim(txtHeader->text()));
  record.HtmlSource.Set(mText::Trim(txthtmlSource->Text()));
  record.TextCaption.Set(mText::Trim(txtTextCaption->text()));
  record.Description.Set(mText::Trim(txtDescription->Text()));
}

void frmSelfStencilBuilder::cmdSave_Click() {
  const QPointer<frmSelfStencilBuilder> self(this);
  if (mText::Trim(txtHeader->text()).isEmpty()) {
    Tell(QStringLiteral("You must enter an entry header before you can generate an entry!"),
         Dialogs::Icon::Information, messageTitle);
    if (!IsGone(self)) txtHeader->setFocus();
    return;
  }
  QString parentKey = StencilTag(trwStencils->SelectedNode());
  if (parentKey.isEmpty()) parentKey = StencilTag(trwStencils->Node(1));
  if (parentKey.size() >= longestParentKey) {
    Tell(QStringLiteral("You have reached the maximum of 225 sections in the stencil tree!\r\n"
                        "Please set a different tree selection."),
         Dialogs::Icon::Critical, QStringLiteral("Self Stencil Building Message"));
    return;
  }
  EnableChanges(false);
  const QString path = SelfBuiltPath();
  const QString key = StencilFiles::NextFreeStencilKey(path, parentKey);
  if (key == StencilFiles::NoKey) {
    // The controls stay disabled until the form is opened again.
    Tell(QStringLiteral("The entry you have selected is full and could not take any more "
                        "sub-entries!\r\nPlease select another top-entry and try again."),
         Dialogs::Icon::Information, messageTitle);
    return;
  }
  StencilRecord record;
  FillTexts(record);
  record.ParentKey.Set(parentKey);
  record.Key.Set(key);
  StencilFile(path).Append(record);
  txtHeader->clear();
  txthtmlSource->SetText({});
  txtTextCaption->clear();
  txtDescription->SetText({});
  if (!ReloadAndReselect()) return;
  txtHeader->setFocus();
  EnableChanges(true);
}

void frmSelfStencilBuilder::cmdOverwriteSelection_Click() {
  const QPointer<frmSelfStencilBuilder> self(this);
  if (!Ask(QStringLiteral("Do you want to overwrite the selected entry?"),
           QStringLiteral("Self Stencil Builder Overwrite ReQuest")) ||
      IsGone(self)) {
    return;
  }
  EnableChanges(false);
  const QByteArray key = mAnsi::ToAnsi(StencilTag(trwStencils->SelectedNode()));
  const StencilFile file(SelfBuiltPath());
  file.Scan(1, [&](qint64 n, const StencilRecord &record) {
    if (key.isEmpty() || record.Key.TrimmedBytes() != key) return true;
    StencilRecord changed = record;
    FillTexts(changed);
    file.Put(n, changed);
    return false;
  });
  if (!ReloadAndReselect()) return;
  txtHeader->setFocus();
  EnableChanges(true);
}

void frmSelfStencilBuilder::cmdDelete_Click() {
  const QPointer<frmSelfStencilBuilder> self(this);
  if (!Ask(QStringLiteral("Do you want to delete this entry an all of its sub entries?"),
           QStringLiteral("Self Stencil Builder Delete ReQuest")) ||
      IsGone(self)) {
    return;
  }
  EnableChanges(false);
  const QString path = SelfBuiltPath();
  // Without a selected node the key is empty, and all records begin with that.
  mStencilBuilder::BlankSubtree(path, StencilTag(trwStencils->SelectedNode()));
  {
    const LockedPainting locked(trwStencils);
    mStencilBuilder::CompactSelfBuiltFiles(
        path, StencilFiles::ResolveDataFile(StencilFiles::QuickBar),
        StencilFiles::ResolveDataFile(StencilFiles::Scratch), &DoEventsInLoop);
    if (IsGone(self)) return;
    if (ReloadBuilderTree() < 1) cboHirarchieSteps->addItem(QStringLiteral("none"));
  }
  if (IsGone(self)) return;
  Reselect(lastClicked_ - 1);
  EnableChanges(true);
  cmdDelete->setFocus();
}

void frmSelfStencilBuilder::cmdAddtoQuick_Click() {
  const QPointer<frmSelfStencilBuilder> self(this);
  EnableChanges(false);
  const QString key = StencilTag(trwStencils->SelectedNode());
  const auto adding = QuickBar::Add(StencilFiles::ResolveDataFile(StencilFiles::QuickBar), key);
  if (adding == QuickBar::Adding::Full) {
    Tell(
        QStringLiteral("Quickbar could only contains 100 entries and you have reached the margin!"),
        Dialogs::Icon::Information, QStringLiteral("Quickbar Editor Window"));
  } else if (adding == QuickBar::Adding::Present) {
    Tell(QStringLiteral("The Selected Entry is still in the Quickbar!"), Dialogs::Icon::Information,
         QStringLiteral("Self Stencil Building Window Message"));
  }
  if (IsGone(self)) return;
  // At the margin the other controls stay disabled until the form is opened again.
  if (adding != QuickBar::Adding::Full) EnableChanges(true);
  cmdAddtoQuick->setEnabled(true);
  cmdAddtoQuick->setFocus();
}

// ---- the end

// The unload fills the main window's tree once more.
void frmSelfStencilBuilder::cmdOk_Click() {
  const QPointer<frmSelfStencilBuilder> self(this);
  hide();
  LoadStencilTrees(false, true);
  if (!IsGone(self)) Unload(*self);
}

bool frmSelfStencilBuilder::QueryUnload(UnloadMode) {
  hide();
  LoadStencilTrees(false, true);
  return true;
}
