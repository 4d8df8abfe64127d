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
  if (box.SelLength() > 0) box.SetSelLength(0);
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
    if (selected > 0) box.SetSelStart(box.SelStart() + selected);
  });
}

void Insertion::Surround(const QString &opening, const QString &closing) {
  Insert([&](RichTextBox &box) {
    const qsizetype start = box.SelStart();
    const qsizetype selected = box.SelLength();
    if (selected == 0) {
      box.SetSelText(opening + closing);
      if (box.SelStart() > start) box.SetSelStart(box.SelStart() - closing.size());
    } else {
      QTextCursor oneStep = box.textCursor();
      oneStep.beginEditBlock();
      InsertInFront(box, opening);
      box.SetSelStart(box.SelStart() + selected);
      box.SetSelText(closing);
      oneStep.endEditBlock();
    }
    box.setFocus();
  });
}
