#include "frame/frmPathSelect.h"

#include <QStyle>

#include "base/Drives.h"
#include "frame/FolderTree.h"
#include "frame/frmPreferences.h"
#include "toolkit/Dialogs.h"

namespace {

constexpr int stencilsTab = 4;
constexpr int temporaryTab = 5;

QString KeyOf(const QTreeWidgetItem *node) {
  return node ? node->data(0, Qt::UserRole).toString() : QString();
}

// It has the text of one, but a folder may bear that name as well; it has no key.
bool IsPlaceholder(const QTreeWidgetItem *node) {
  return node && KeyOf(node).isEmpty();
}

// Writes into the box of the page in view, if it has one for a folder.
void PutPath(const QString &path) {
  const auto &preferences = *Default<frmPreferences>();
  const int tab = preferences.tbsOptions->currentIndex();
  if (tab == stencilsTab) preferences.txtOtherStencilsPath->setText(path);
  if (tab == temporaryTab) preferences.txtOtherTemporaryPath->setText(path);
}

}  // namespace

frmPathSelect::frmPathSelect() : DialogForm(Default<frmPreferences>()) {
  setupUi(this);
  drvDrive->addItems(Drives());
  connect(drvDrive, &QComboBox::currentTextChanged, this, &frmPathSelect::drvDrive_Change);
  connect(trwPaths, &QTreeWidget::itemExpanded, this, &frmPathSelect::trwPaths_Expand);
  connect(cmdSelectThisPath, &QPushButton::clicked, this, &frmPathSelect::cmdSelectThisPath_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmPathSelect::cmdCancel_Click);
}

void frmPathSelect::Load() {
  drvDrive_Change(drvDrive->currentText());
  trwPaths->setFocus();
}

void frmPathSelect::drvDrive_Change(const QString &drive) {
  const QString root = FolderTree::RootKey(drive, mPlatform::Current());
  trwPaths->clear();
  QTreeWidgetItem *node = NodeFor(root, root, style()->standardIcon(QStyle::SP_DriveHDIcon));
  trwPaths->addTopLevelItem(node);
  node->setExpanded(true);
}

void frmPathSelect::trwPaths_Expand(QTreeWidgetItem *node) {
  if (IsPlaceholder(node->child(0))) ReadFolder(*node);
}

// All at once: a tree that is told of each node by itself takes long over a large folder.
void frmPathSelect::ReadFolder(QTreeWidgetItem &node) {
  const QString key = KeyOf(&node);
  const QIcon image = style()->standardIcon(QStyle::SP_DirClosedIcon);
  QList<QTreeWidgetItem *> folders;
  for (const QString &name : FolderTree::FoldersIn(key)) {
    folders << NodeFor(name, FolderTree::ChildKey(key, name, mPlatform::Current()), image);
  }
  qDeleteAll(node.takeChildren());
  node.addChildren(folders);
}

QTreeWidgetItem *frmPathSelect::NodeFor(const QString &text, const QString &key,
                                        const QIcon &image) const {
  auto *node = new QTreeWidgetItem({text});
  node->setData(0, Qt::UserRole, key);
  node->setIcon(0, image);
  node->addChild(new QTreeWidgetItem({QStringLiteral("*")}));
  return node;
}

void frmPathSelect::cmdSelectThisPath_Click() {
  const QString key = KeyOf(trwPaths->selectedItems().value(0));
  const QString root = FolderTree::RootKey(drvDrive->currentText(), mPlatform::Current());
  const auto path = FolderTree::PathOf(key, root, mPlatform::Current());
  if (!path) {
    Dialogs::Current().Message(QStringLiteral("Please select a valid path!"), Dialogs::Buttons::Ok,
                               Dialogs::Icon::Information, QStringLiteral("Path Selection Alert!"));
    return;
  }
  PutPath(*path);
  Unload(*this);
}

// A folder that was chosen before goes as well.
void frmPathSelect::cmdCancel_Click() {
  PutPath({});
  Unload(*this);
}
