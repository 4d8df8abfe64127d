#include "documents/EditCommands.h"

#include <QClipboard>
#include <QGuiApplication>

#include "documents/Insertion.h"
#include "documents/mEditors.h"

namespace EditCommands {

namespace {

void CopyFrom(const RichTextBox &box) {
  // Other programs show a CR as a stray character, so the clipboard has lone LFs.
  QGuiApplication::clipboard()->setText(
      box.SelText().replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void Replace(RichTextBox &box, const QString &text) {
  Insertion::ReplaceSelection(text);
  box.setFocus();
}

}  // namespace

void Copy() {
  if (const frmHTMLChild *editor = mEditors::Active()) CopyFrom(*editor->txthtml);
}

void Cut() {
  frmHTMLChild *editor = mEditors::Active();
  if (!editor) return;
  CopyFrom(*editor->txthtml);
  Replace(*editor->txthtml, {});
}

void Paste() {
  if (frmHTMLChild *editor = mEditors::Active()) {
    Replace(*editor->txthtml, QGuiApplication::clipboard()->text());
  }
}

void ClearClipboard() {
  QGuiApplication::clipboard()->clear();
}

}  // namespace EditCommands
