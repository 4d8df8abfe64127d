#include "documents/Insertion.h"

#include "documents/mEditors.h"

namespace {

// Lets write put its text into the active document.
template <class Write>
void Insert(Write write) {
  frmHTMLChild *editor = mEditors::Active();
  if (!editor) return;
  write(*editor->txthtml);
  editor->txthtml->ensureCursorVisible();
  editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
}

void InsertInFront(RichTextBox &box, const QString &text) {
  box.SetSelLength(0);
  box.SetSelText(text);
}

}  // namespace

void Insertion::ReplaceSelection(const QString &text) {
  Insert([&](RichTextBox &box) { box.SetSelText(text); });
}

void Insertion::PutInFront(const QString &text) {
  Insert([&](RichTextBox &box) { InsertInFront(box, text); });
}

void Insertion::PutInFrontAndPass(const QString &text) {
  Insert([&](RichTextBox &box) {
    const qsizetype selected = box.SelLength();
    InsertInFront(box, text);
    box.SetSelStart(box.SelStart() + selected);
  });
}

void Insertion::Surround(const QString &opening, const QString &closing) {
  Insert([&](RichTextBox &box) {
    const qsizetype selected = box.SelLength();
    QTextCursor oneStep = box.textCursor();
    oneStep.beginEditBlock();
    InsertInFront(box, opening);
    const qsizetype between = box.SelStart();
    box.SetSelStart(between + selected);
    box.SetSelText(closing);
    oneStep.endEditBlock();
    if (selected == 0) box.SetSelStart(between);
    box.setFocus();
  });
}
