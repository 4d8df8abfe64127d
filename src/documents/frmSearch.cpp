#include "documents/frmSearch.h"

#include <QPointer>

#include "base/mText.h"
#include "documents/mEditors.h"
#include "frame/mdiMain.h"
#include "toolkit/Dialogs.h"
#include "toolkit/WindowOnTop.h"

namespace {
constexpr qsizetype top = 1;
}

frmSearch::frmSearch() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdSearch, &QPushButton::clicked, this, &frmSearch::cmdSearch_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
  connect(txtSearchString, &QLineEdit::textChanged, this, [this] { lastHit_ = top; });
}

void frmSearch::Load() {
  raise();
}

void frmSearch::cmdSearch_Click() {
  const QPointer<frmHTMLChild> editor = mEditors::Active();
  if (!mPublic::AnyEditorOpen() || !editor) return;
  RichTextBox &box = *editor->txthtml;
  const QString sought = mText::Trim(txtSearchString->text());
  const qsizetype selectAt = lastHit_ - 1;
  box.setFocus();
  lastHit_ = box.Find(sought, lastHit_ + 1, chkMatchCase->isChecked());
  box.SetSelStart(selectAt);
  box.SetSelLength(sought.size() + 1);
  box.ShowHit();
  editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
  if (lastHit_ >= 1) return;

  const QPointer<frmSearch> self(this);
  SetWindowOnTop(*this, false);
  Dialogs::Current().Message(QStringLiteral("Window was searched complete!"), Dialogs::Buttons::Ok,
                             Dialogs::Icon::Information, QStringLiteral("Window Search"));
  if (!self || IsUnloaded()) return;
  SetWindowOnTop(*this, true);
  lastHit_ = top;
  if (!editor || editor->IsUnloaded()) return;
  box.SetSelStart(1);
  box.SetSelLength(sought.size());
  editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
}

void frmSearch::Unloaded() {
  for (frmHTMLChild *editor : mEditors::aEditorWindow) {
    if (editor) editor->txthtml->ClearHit();
  }
}
