#include "documents/FileCommands.h"

#include <QFileInfo>
#include <QPointer>

#include "base/TextFile.h"
#include "base/WholeFile.h"
#include "base/mText.h"
#include "documents/DocumentName.h"
#include "documents/DocumentText.h"
#include "documents/OpenFilesTree.h"
#include "documents/SaveQuestion.h"
#include "documents/frmNewEditorWindow.h"
#include "documents/mEditors.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace FileCommands {

namespace {

// Shows the save dialog. False after Cancel, or if no file is named.
bool AskForFile(CommonDialog &dialog) {
  return dialog.ShowSave() && !dialog.FileTitle().isEmpty();
}

// The dialog's name, or nothing if the user has cancelled or the document has gone meanwhile.
bool NameByDialog(const QPointer<frmHTMLChild> &editor) {
  return AskForFile(Default<mdiMain>()->cdgFileSave) && editor && !editor->IsUnloaded();
}

// Read first: a file that can't be loaded leaves the list of documents as it is.
void OpenInNewEditor(const QString &path) {
  if (mPublic::FirstFreeSlot() == 0) return;
  auto text = TextFile::Read(path);
  if (!text) return;
  frmHTMLChild *editor = mEditors::OpenWindow();
  if (!editor) return;
  editor->txthtml->setPlainText(*text);
  text.reset();
  editor->SetCaption(path);
  RebuildOpenFilesTree();
}

// The document counts as saved whether or not the file took the text.
void Print(const frmHTMLChild &editor, const QString &path, const QByteArray &printed) {
  editor.journal->Saved(WriteWholeFile(path, printed));
  mPublic::aEditorState[editor.Slot()].changed = false;
}

}  // namespace

bool PrintUnderNewName(frmHTMLChild &document, const QByteArray &printed) {
  const QPointer<frmHTMLChild> editor = &document;
  if (!NameByDialog(editor)) return false;
  const QString path = Default<mdiMain>()->cdgFileSave.FileName;
  Print(*editor, path, printed);
  editor->SetCaption(path);
  return true;
}

void NewFile() {
  Default<frmNewEditorWindow>()->show();
}

void Open() {
  CommonDialog &dialog = Default<mdiMain>()->cdgFileOpen;
  if (!dialog.ShowOpen() || dialog.FileTitle().isEmpty()) return;
  OpenInNewEditor(dialog.FileName);
}

void LoadFileIntoNewEditor(const QString &path) {
  OpenInNewEditor(QFileInfo(mText::Trim(path)).absoluteFilePath());
}

void OpenDroppedFile(const QString &path) {
  OpenInNewEditor(path);
}

void Save() {
  if (!mPublic::AnyEditorOpen()) return;
  const QPointer<frmHTMLChild> editor = mEditors::Active();
  if (AskWhetherToSave() != Dialogs::Answer::Yes || !editor || editor->IsUnloaded()) return;
  const QByteArray printed = PrintedText(editor->txthtml->Text());
  if (!DocumentName::IsUnsaved(editor->Caption())) {
    Print(*editor, editor->Caption(), printed);
  } else if (!PrintUnderNewName(*editor, printed)) {
    return;
  }
  RebuildOpenFilesTree();
}

void SaveAs() {
  if (!mPublic::AnyEditorOpen()) return;
  const QPointer<frmHTMLChild> editor = mEditors::Active();
  if (!editor) return;
  CommonDialog &dialog = Default<mdiMain>()->cdgFileSave;
  dialog.FileName = DocumentName::IsUnsaved(editor->Caption()) ? QString() : editor->Caption();
  if (!NameByDialog(editor)) return;
  editor->SetCaption(dialog.FileName);
  editor->journal->Saved(editor->txthtml->SaveFile(editor->Caption()));
  mPublic::aEditorState[editor->Slot()].changed = false;
  RebuildOpenFilesTree();
}

void SaveAll() {
  if (!mPublic::AnyEditorOpen()) return;
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    const QPointer<frmHTMLChild> editor = mEditors::aEditorWindow[slot];
    if (!mPublic::aEditorState[slot].open || !editor) continue;
    mEditors::BringToTop(*editor);
    DoEvents();
    if (!editor || editor->IsUnloaded()) continue;
    const QString text = editor->txthtml->Text();
    if (mText::Trim(text).isEmpty()) continue;
    if (AskWhetherToSave() != Dialogs::Answer::Yes || !NameByDialog(editor)) continue;
    const QString path = Default<mdiMain>()->cdgFileSave.FileName;
    Print(*editor, path, PrintedText(text));
    editor->SetCaption(path);
  }
  RebuildOpenFilesTree();
}

}  // namespace FileCommands
