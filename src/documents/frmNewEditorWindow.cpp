#include "documents/frmNewEditorWindow.h"

#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QPointer>

#include "documents/DocumentName.h"
#include "documents/NewDocumentPictures.h"
#include "documents/OpenFilesTree.h"
#include "documents/mEditors.h"
#include "frame/mdiMain.h"
#include "toolkit/FocusMark.h"
#include "toolkit/WindowOnTop.h"
#include "toolkit/twips.h"

namespace {
constexpr int columns = 3;
}

frmNewEditorWindow::frmNewEditorWindow() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  imgNewEditorWindowType_ = {imgNewEditorWindowType_0, imgNewEditorWindowType_1,
                             imgNewEditorWindowType_2, imgNewEditorWindowType_3,
                             imgNewEditorWindowType_4, imgNewEditorWindowType_5};
  for (int i = 0; i < NewDocumentTypes; ++i) {
    imgNewEditorWindowType_[i]->setPixmap(
        NewDocumentPicture(NewDocumentType(i), devicePixelRatioF()));
    imgNewEditorWindowType_[i]->installEventFilter(this);
    new FocusMark(imgNewEditorWindowType_[i]);
  }
  connect(cmdOk, &QPushButton::clicked, this, &frmNewEditorWindow::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmNewEditorWindow::Load() {
  SetWindowOnTop(*this, true);
  shpSelectionBorder->lower();
  Choose(0);
}

void frmNewEditorWindow::showEvent(QShowEvent *event) {
  DialogForm::showEvent(event);
  // Only now do the pictures have their places.
  layMain->activate();
  Choose(int(chosen_));
}

void frmNewEditorWindow::Choose(int index) {
  chosen_ = NewDocumentType(index);
  const QLabel &picture = *imgNewEditorWindowType_[index];
  shpSelectionBorder->setGeometry(picture.x() - twips(570), picture.y() - twips(90), twips(1620),
                                  twips(1100));
  for (int i = 0; i < NewDocumentTypes; ++i) {
    imgNewEditorWindowType_[i]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

bool frmNewEditorWindow::eventFilter(QObject *watched, QEvent *event) {
  const auto picture = std::find(imgNewEditorWindowType_.begin(), imgNewEditorWindowType_.end(),
                                 static_cast<QObject *>(watched));
  if (picture == imgNewEditorWindowType_.end()) return DialogForm::eventFilter(watched, event);
  const int index = int(picture - imgNewEditorWindowType_.begin());
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      Choose(index);
      break;
    case QEvent::MouseButtonDblClick:
      Choose(index);
      cmdOk_Click();
      break;
    case QEvent::KeyPress:
      return MoveChoice(index, static_cast<QKeyEvent *>(event)->key());
    default:
      break;
  }
  return false;
}

bool frmNewEditorWindow::MoveChoice(int index, int key) {
  int target = -1;
  if (key == Qt::Key_Left) target = index - 1;
  if (key == Qt::Key_Right) target = index + 1;
  if (key == Qt::Key_Up) target = index - columns;
  if (key == Qt::Key_Down) target = index + columns;
  if (target < 0 || target >= NewDocumentTypes) return false;
  Choose(target);
  imgNewEditorWindowType_[target]->setFocus();
  return true;
}

void frmNewEditorWindow::cmdOk_Click() {
  const QPointer<frmNewEditorWindow> self(this);
  // A second press while the window opens would open another.
  setEnabled(false);
  const QString text = NewDocumentText(
      chosen_, QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
  if (frmHTMLChild *editor = mEditors::OpenWindow()) {
    editor->SetCaption(DocumentName::Unsaved);
    editor->txthtml->SetText(text);
    editor->txthtml->setFocus();
    RebuildOpenFilesTree();
  }
  if (self) Unload(*self);
}
