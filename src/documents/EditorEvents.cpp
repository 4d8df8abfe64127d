#include "documents/EditorEvents.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>

#include "documents/ColourEditorLine.h"
#include "documents/frmHTMLChild.h"
#include "documents/mEditors.h"
#include "frame/RedrawToolStripCells.h"
#include "frame/mPublic.h"
#include "toolkit/DoEvents.h"

namespace {

// How many numbers a change of the first visible line brings behind a key; all of them elsewhere.
constexpr int numbersBehindKey = 70;

constexpr int longestIndent = 100;  // blanks

bool OnlyShift(const QKeyEvent &key) {
  constexpr Qt::KeyboardModifiers counted =
      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return (key.modifiers() & counted) == Qt::ShiftModifier;
}

bool IsIndent(const QKeyEvent &key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
}

// The keys by which a line is left. Left, Right and Home never colour, nor does a letter.
bool LeavesLine(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_End:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return true;
    default:
      return false;
  }
}

}  // namespace

EditorEvents::EditorEvents(frmHTMLChild *editor)
    : QObject(editor), editor_(editor), painting_(new FrozenPainting(editor)) {
  RichTextBox *box = editor->txthtml;
  box->installEventFilter(this);
  box->viewport()->installEventFilter(this);
  box->viewport()->setMouseTracking(true);
  const auto free = [this] { painting_->Free(); };
  connect(box, &RichTextBox::textChanged, this, free);
  connect(box, &RichTextBox::selectionChanged, this, free);
  connect(box, &RichTextBox::cursorPositionChanged, this, free);
  for (QScrollBar *bar : {box->verticalScrollBar(), box->horizontalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, free);
  }
}

// Keys come to the box, the mouse to its viewport or, beside the text, to the box. Other events
// come also while the window is being destroyed.
bool EditorEvents::eventFilter(QObject *, QEvent *event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return !editor_->IsUnloaded() && Handle(*event);
    default:
      return false;
  }
}

// Whether the event goes no further.
bool EditorEvents::Handle(QEvent &event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return KeyDown(static_cast<QKeyEvent &>(event));
    case QEvent::KeyRelease:
      // The toolkit sends a release for each repeat of a held key.
      if (!static_cast<QKeyEvent &>(event).isAutoRepeat()) KeyUp(static_cast<QKeyEvent &>(event));
      break;
    case QEvent::InputMethod:
      // Letters composed by an input method come without a key.
      if (!static_cast<QInputMethodEvent &>(event).commitString().isEmpty()) MarkAsTyped();
      break;
    case QEvent::MouseButtonPress:
      MouseDown();
      break;
    case QEvent::MouseMove:
      MouseMove();
      break;
    default:
      MouseUp();
      break;
  }
  return false;
}

// ---- keys

// Whether the key goes no further.
bool EditorEvents::KeyDown(const QKeyEvent &key) {
  painting_->Free();
  const bool indent = IsIndent(key);
  if (indent) InsertIndent();
  editor_->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
  // What is typed now is black, whatever stood to its left; a selection turns black with it.
  editor_->txthtml->SetSelColor(ColourSpans::Black);
  MarkAsTyped();
  const bool print = key.key() == Qt::Key_P && key.modifiers() == Qt::ControlModifier;
  return indent || print;
}

// Every key counts as a change, also one that only moves the caret.
void EditorEvents::MarkAsTyped() {
  if (editor_->Slot() <= 0) return;
  mPublic::aEditorState[editor_->Slot()].changed = true;
  mPublic::iActualEditor = editor_->Slot();
}

void EditorEvents::InsertIndent() {
  mPublic::ReadPreferences();
  const int blanks = std::clamp<int>(mPublic::recPreferences.TabulatorCount, 0, longestIndent);
  editor_->txthtml->SetSelText(QString(blanks, u' '));
  editor_->txthtml->ensureCursorVisible();
}

void EditorEvents::KeyUp(const QKeyEvent &key) {
  RichTextBox &box = *editor_->txthtml;
  if (key.key() == Qt::Key_Clear || key.key() == Qt::Key_Delete) {
    box.SetSelText({});
    return;
  }
  editor_->SyncLineNumbers(numbersBehindKey);
  if (!mPublic::AnyTagHighlight()) return;
  if (box.SelLength() >= 1 || OnlyShift(key)) {
    // Held until the next key, so that a selection made by Shift and the arrows stands quietly.
    painting_->Freeze();
    return;
  }
  painting_->Free();
  if (LeavesLine(key.key())) ColourEditorLine(*editor_);
}

// ---- mouse

void EditorEvents::MouseDown() {
  mEditors::TakeActiveFromFront();
  editor_->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
}

// Pumping brings the next move in the middle of this one; the last one is handled at its end.
void EditorEvents::MouseMove() {
  move_.Run([this] { MouseMoveOnce(); });
}

void EditorEvents::MouseMoveOnce() {
  const QPointer<frmHTMLChild> editor = editor_;
  DoEvents();
  if (!editor || editor->IsUnloaded()) return;
  editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
  RedrawToolStripCells();
}

void EditorEvents::MouseUp() {
  editor_->lineOfLastPass = editor_->txthtml->CaretLine();
  editor_->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
}
