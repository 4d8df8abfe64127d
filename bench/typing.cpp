#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "Compare.h"
#include "documents/FileCommands.h"
#include "documents/mEditors.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr qsizetype large = 10 << 20;
constexpr qsizetype small = 100 << 10;
constexpr int keys = 200;
constexpr int positions = 2000;

void PressKey(QWidget &box) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QCoreApplication::sendEvent(&box, &press);
  QCoreApplication::sendEvent(&box, &release);
  DoEvents();
}

// Milliseconds a key, each drawn before the next, in the middle of the text.
double Type(QPlainTextEdit &box) {
  QTextCursor cursor = box.textCursor();
  cursor.setPosition(
      box.document()->findBlockByNumber(box.document()->blockCount() / 2).position());
  box.setTextCursor(cursor);
  DoEvents();
  return Seconds([&box] {
           for (int key = 0; key < keys; ++key) PressKey(box);
         }) *
         1000 / keys;
}

// Microseconds to set the caret to a position of the text and ask for it again.
double MoveCaret(RichTextBox &box) {
  const qsizetype length = box.TextLength();
  qsizetype sum = 0;
  const double seconds = Seconds([&] {
    for (int i = 0; i < positions; ++i) {
      box.SetSelStart(length / positions * i);
      sum += box.SelStart() + box.GetLineFromChar(length - i);
    }
  });
  return sum > 0 ? seconds * 1e6 / positions : 0;
}

RichTextBox &Opened(qsizetype bytes) {
  FileCommands::LoadFileIntoNewEditor(PageFile(bytes));
  return *mEditors::Active()->txthtml;
}

}  // namespace

void BenchTyping() {
  RichTextBox &smallBox = Opened(small);
  RichTextBox &largeBox = Opened(large);
  auto *bare = new QPlainTextEdit;
  bare->setLineWrapMode(QPlainTextEdit::NoWrap);
  bare->setFont(largeBox.font());
  bare->setPlainText(QString::fromLatin1(Page(large)));
  QMdiSubWindow *bareWindow = mEditors::Area().addSubWindow(bare);
  bareWindow->resize(mEditors::Active()->size());
  bareWindow->show();
  DoEvents();
  const auto typeIn = [](QMdiSubWindow *window, QPlainTextEdit &box) {
    mEditors::Area().setActiveSubWindow(window);
    box.setFocus();
    DoEvents();
    return Type(box);
  };
  const auto ours = [&typeIn](RichTextBox &box) {
    auto *window = qobject_cast<QMdiSubWindow *>(box.parentWidget()->parentWidget());
    return typeIn(window, box);
  };
  Compare(
      QStringLiteral("a key in 10 MB against the bare widget's"), QStringLiteral("ms"), 1.5,
      [&] { return ours(largeBox); }, [&] { return typeIn(bareWindow, *bare); });
  Compare(
      QStringLiteral("a key in 10 MB against one in 100 kB"), QStringLiteral("ms"), 1.5,
      [&] { return ours(largeBox); }, [&] { return ours(smallBox); });
  // A hundred times the lines: two searches in trees of that many more levels, never a walk.
  Compare(
      QStringLiteral("position to caret and back, 10 MB against 100 kB"), QStringLiteral("us"), 3,
      [&] { return MoveCaret(largeBox); }, [&] { return MoveCaret(smallBox); });
  delete bareWindow;
}
