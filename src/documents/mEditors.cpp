#include "documents/mEditors.h"

#include <QMdiArea>
#include <algorithm>

#include "base/mText.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace mEditors {

std::array<QPointer<frmHTMLChild>, mPublic::LastSlot + 1> aEditorWindow;

namespace {

// The window that was in front last. The area announces the same window again whenever the program
// becomes the active one; only another window means that the user has turned to it.
QPointer<QMdiSubWindow> inFront;
bool takingAway = false;

constexpr int longestIndent = 100;  // blanks

void SetFonts(frmHTMLChild &editor, const Preferences &record) {
  const int size = record.EditorFontSize;
  const QString name = record.EditorFontName.Trimmed();
  const int indent = record.TabulatorCount;
  if (indent > 0) editor.txthtml->SetTabWidth(std::min(indent, longestIndent));
  for (RichTextBox *box : {editor.txthtml, editor.rtfLineNumber}) {
    QFont font = box->font();
    if (size > 0) font.setPointSize(size);
    if (!name.isEmpty()) font.setFamily(name);
    font.setBold(false);
    font.setItalic(false);
    font.setUnderline(false);
    font.setStrikeOut(false);
    box->setFont(font);
  }
}

// A new window stands a title bar further down and to the right than the one of the slot before,
// and leaves room for the ones to come and for the width that it gains at its end.
void Cascade(frmHTMLChild &editor, const QSize &area) {
  constexpr int step = 28;  // pixels
  constexpr int inARow = 6;
  constexpr int gainedWidth = 100;
  const int place = (editor.Slot() - 1) % inARow * step;
  const QSize room(inARow * step + gainedWidth, inARow * step);
  editor.setGeometry(QRect(QPoint(place, place), (area - room).expandedTo(area / 2)));
}

}  // namespace

frmHTMLChild *Active() {
  const int slot = mPublic::iActualEditor;
  if (slot < 1 || slot > mPublic::LastSlot || !mPublic::aEditorState[slot].open) return nullptr;
  return aEditorWindow[slot];
}

QMdiArea &Area() {
  return *Default<mdiMain>()->mdiArea;
}

frmHTMLChild *OpenWindow() {
  const int slot = mPublic::FirstFreeSlot();
  if (slot == 0) return nullptr;
  mPublic::aEditorState[slot].open = true;
  mPublic::iActualEditor = slot;
  const QPointer<frmHTMLChild> editor = new frmHTMLChild;
  aEditorWindow[slot] = editor;
  editor->Tag = QString::number(slot);
  editor->Load();
  mPublic::ReadPreferences();
  SetFonts(*editor, mPublic::recPreferences);

  QMdiArea &area = Area();
  area.addSubWindow(editor);
  Cascade(*editor, area.viewport()->size());
  editor->show();
  const auto gone = [&editor] { return !editor || editor->IsUnloaded(); };
  if (gone()) return nullptr;
  editor->PlaceBoxes();
  if (gone()) return nullptr;
  editor->txthtml->setFocus();
  if (!editor->isMaximized() && !editor->isMinimized()) {
    editor->resize(editor->width() + 100, editor->height());
  }
  return gone() ? nullptr : editor.data();
}

void UseFont(const Preferences &record) {
  mPublic::NextOpenEditor(-1);
  for (int left = mPublic::CountOpenEditors(); left > 0; --left) {
    frmHTMLChild *editor = aEditorWindow[mPublic::NextOpenEditor(0)];
    if (!editor) continue;
    SetFonts(*editor, record);
    editor->txthtml->SetSelStart(editor->txthtml->TextLength());
    editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
  }
}

void BringToTop(frmHTMLChild &editor) {
  Area().setActiveSubWindow(&editor);
  editor.raise();
}

void TakeFromArea(frmHTMLChild &editor) {
  QMdiArea *area = editor.mdiArea();
  if (!area) return;
  const bool maximized = editor.isMaximized();
  takingAway = true;
  area->removeSubWindow(&editor);
  takingAway = false;
  // Who works with maximised windows goes on with the next one maximised.
  QMdiSubWindow *next = area->currentSubWindow();
  if (maximized && next && !mPublic::bAppClosing) next->showMaximized();
}

void WindowActivated(QMdiSubWindow *window) {
  if (!window || window == inFront) return;
  inFront = window;
  if (takingAway) return;
  if (auto *editor = qobject_cast<frmHTMLChild *>(window)) editor->GotFocus();
}

void TakeActiveFromFront() {
  auto *editor = qobject_cast<frmHTMLChild *>(Area().currentSubWindow());
  if (editor && !editor->Caption().isEmpty()) editor->GotFocus();
}

}  // namespace mEditors
