#include "assistants/Insertion.h"

#include "documents/mEditors.h"

namespace {

RichTextBox *ActiveText() {
  frmHTMLChild *editor = mEditors::Active();
  return editor ? editor->txthtml : nullptr;
}

}  // namespace

void Insertion::ReplaceSelection(const QString &text) {
  if (RichTextBox *box = ActiveText()) box->SetSelText(text);
}

void Insertion::PutInFront(const QString &text) {
  RichTextBox *box = ActiveText();
  if (!box) return;
  box->SetSelStart(box->SelStart());  // drops the selection
  box->SetSelText(text);
}

void Insertion::PutInFrontAndPass(const QString &text) {
  RichTextBox *box = ActiveText();
  if (!box) return;
  const qsizetype selected = box->SelLength();
  PutInFront(text);
  box->SetSelStart(box->SelStart() + selected);
}

void Insertion::Surround(const QString &opening, const QString &closing) {
  RichTextBox *box = ActiveText();
  if (!box) return;
  const qsizetype selected = box->SelLength();
  QTextCursor oneStep = box->textCursor();
  oneStep.beginEditBlock();
  PutInFront(opening);
  const qsizetype between = box->SelStart();
  box->SetSelStart(between + selected);
  box->SetSelText(closing);
  oneStep.endEditBlock();
  if (selected == 0) box->SetSelStart(between);
  box->setFocus();
}
