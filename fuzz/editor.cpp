// The text of an editor window under keys, mouse, insertions and searches in any order, with the
// colouring pass on: the text and everything that follows it stay in step.

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextLayout>
#include <array>

#include "Fuzz.h"
#include "base/mAnsi.h"
#include "documents/FileCommands.h"
#include "documents/Insertion.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

struct Key {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char *text;
};

constexpr Qt::KeyboardModifiers none = Qt::NoModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers control = Qt::ControlModifier;

constexpr Key keys[] = {
    {Qt::Key_Less, none, "<"},
    {Qt::Key_Greater, none, ">"},
    {Qt::Key_Slash, none, "/"},
    {Qt::Key_H, none, "h"},
    {Qt::Key_E, none, "e"},
    {Qt::Key_A, none, "a"},
    {Qt::Key_D, none, "d"},
    {Qt::Key_Space, none, " "},
    {Qt::Key_Return, none, "\r"},
    {Qt::Key_Return, shift, "\r"},
    {Qt::Key_Backspace, none, "\b"},
    {Qt::Key_Delete, none, "\x7f"},
    {Qt::Key_Backspace, control, "\b"},
    {Qt::Key_Delete, control, "\x7f"},
    {Qt::Key_Up, none, ""},
    {Qt::Key_Down, none, ""},
    {Qt::Key_Left, none, ""},
    {Qt::Key_Right, none, ""},
    {Qt::Key_Home, none, ""},
    {Qt::Key_End, none, ""},
    {Qt::Key_PageUp, none, ""},
    {Qt::Key_PageDown, none, ""},
    {Qt::Key_Up, shift, ""},
    {Qt::Key_Down, shift, ""},
    {Qt::Key_Left, shift, ""},
    {Qt::Key_Right, shift, ""},
    {Qt::Key_Home, control, ""},
    {Qt::Key_End, control, ""},
    {Qt::Key_Tab, none, "\t"},
    {Qt::Key_Backtab, shift, "\t"},
    {Qt::Key_Z, control, "\x1a"},
    {Qt::Key_Y, control, "\x19"},
    {Qt::Key_A, control, "\x01"},
    {Qt::Key_X, control, "\x18"},
    {Qt::Key_C, control, "\x03"},
    {Qt::Key_V, control, "\x16"},
    {Qt::Key_K, control, "\x0b"},
    {Qt::Key_Z, control | shift, "\x1a"},
    {Qt::Key_Insert, none, ""},
    {Qt::Key_F10, shift, ""},
    {Qt::Key_unknown, none, "\xe2\x86\x92"},
};

void Press(RichTextBox &box, const Key &key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key.key, key.modifiers, QString::fromUtf8(key.text));
    QApplication::sendEvent(&box, &event);
  }
}

void Click(RichTextBox &box, QPoint from, QPoint to) {
  const auto send = [&box](QEvent::Type type, QPoint at, Qt::MouseButton button) {
    QMouseEvent event(type, at, box.viewport()->mapToGlobal(at), button, Qt::LeftButton, none);
    QApplication::sendEvent(box.viewport(), &event);
  };
  send(QEvent::MouseButtonPress, from, Qt::LeftButton);
  send(QEvent::MouseMove, to, Qt::NoButton);
  send(QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

void Act(frmHTMLChild &editor, Input &input) {
  RichTextBox &box = *editor.txthtml;
  const auto choice = input.ConsumeIntegral<quint8>();
  if (choice < std::size(keys)) {
    Press(box, keys[choice]);
    return;
  }
  const auto place = [&] { return input.ConsumeIntegralInRange<int>(-2, 300); };
  switch (choice % 8) {
    case 0:
      Insertion::ReplaceSelection(TakeText(input, 100));
      break;
    case 1: {  // what another program has on the clipboard
      const QByteArray units = TakeBytes(input, 100);
      box.SetSelText(QString(reinterpret_cast<const QChar *>(units.data()), units.size() / 2));
      break;
    }
    case 2:
      Insertion::Surround(TakeText(input, 20), TakeText(input, 20));
      break;
    case 3:
      Insertion::PutInFrontAndPass(TakeText(input, 100));
      break;
    case 4:
      box.SetSelStart(place());
      box.SetSelLength(place());
      break;
    case 5: {
      const QString sought = TakeText(input, 10);
      const auto at = box.Find(sought, std::max(place(), 0), true);
      Require(at < 0 || box.Piece(at, sought.size()) == sought, "a hit is what was sought");
      box.ShowHit();
      break;
    }
    case 6:
      Click(box, {place(), place()}, {place(), place()});
      break;
    default:
      for (int n = 1; n <= 3; ++n) mPublic::TagHighlight[n] = input.ConsumeBool();
  }
}

void CheckColours(RichTextBox &box, int line) {
  const QTextBlock block = box.document()->findBlockByNumber(line);
  const auto formats = block.layout()->formats();
  const auto spans = box.ColoursOfLine(line);
  Require(formats.size() == qsizetype(spans.size()), "the colours are shown");
  int behind = 0;
  for (qsizetype n = 0; n < formats.size(); ++n) {
    const auto &span = spans[size_t(n)];
    Require(span.start >= behind && span.end > span.start && span.end < block.length(),
            "a line's colours lie in it, in order");
    Require(formats[n].start == span.start && formats[n].length == span.end - span.start,
            "a colour is shown where it is");
    behind = span.end;
  }
}

void CheckInStep(const frmHTMLChild &editor) {
  RichTextBox &box = *editor.txthtml;
  const QString text = box.Text();
  Require(mAnsi::Holds(text), "the text is what its file can hold");
  Require(box.TextLength() == text.size(), "positions count the text's characters");
  Require(text.count(u'\r') == text.count(u'\n') &&
              text.count(QStringLiteral("\r\n")) == text.count(u'\n'),
          "lines end with CR LF");
  Require(box.SelStart() + box.SelLength() <= text.size(), "the selection lies in the text");
  Require(box.SelText() == text.mid(box.SelStart(), box.SelLength()), "and is a piece of it");
  box.ShowColours();
  for (int line = 0; line < box.blockCount(); ++line) {
    Require(box.GetLineFromChar(box.LineIndex(line)) == line, "a line is where it begins");
    CheckColours(box, line);
  }
  const QString raw = box.document()->toRawText();
  const std::array tags{u"<head", u"</head", u"<body", u"</body"};
  for (int n = 0; n < Landmarks::Count; ++n) {
    Require(editor.landmarks.Position(Landmarks::Landmark(n)) ==
                raw.indexOf(QStringView(tags[size_t(n)]), 0, Qt::CaseInsensitive),
            "the landmarks are the text's");
  }
}

frmHTMLChild &Editor() {
  static const QPointer<frmHTMLChild> editor = [] {
    SetLoopPumpInterval(0);
    auto *main = Default<mdiMain>();
    main->timloadStencils->stop();
    main->resize(900, 600);
    main->show();
    DoEvents();
    PutFile(Path(QStringLiteral("page.htm")), "");
    FileCommands::LoadFileIntoNewEditor(Path(QStringLiteral("page.htm")));
    return mEditors::Active();
  }();
  Require(editor && !editor->IsUnloaded(), "the window stands");
  return *editor;
}

}  // namespace

void Try(Input &input) {
  constexpr qsizetype longest = 10'000;  // pasting doubles a text again and again
  QApplication::clipboard()->clear();    // what the input before has left there
  frmHTMLChild &editor = Editor();
  RichTextBox &box = *editor.txthtml;
  box.SetText(TakeText(input, 2000));
  editor.lineOfLastPass = 0;
  mPublic::TagHighlight = {0, 1, 1, 1};
  const QString before = box.Text();
  while (input.remaining_bytes() > 0 && box.TextLength() < longest) {
    Act(editor, input);
    CheckInStep(editor);
  }
  // Redone first: the input may have ended in the middle of the history.
  while (box.document()->isRedoAvailable()) box.redo();
  const QString last = box.Text();
  while (box.document()->isUndoAvailable()) box.undo();
  Require(box.Text() == before, "undo goes back to the beginning");
  CheckInStep(editor);
  while (box.document()->isRedoAvailable()) box.redo();
  Require(box.Text() == last, "redo goes on to the end");
  CheckInStep(editor);
}
