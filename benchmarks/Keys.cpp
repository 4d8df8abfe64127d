#include "Keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryFile>
#include <QTextBlock>

#include "Compare.h"
#include "documents/FileCommands.h"
#include "documents/mEditors.h"
#include "toolkit/DoEvents.h"

namespace {

QMdiSubWindow *WindowOf(QWidget &box) {
  QWidget *window = &box;
  while (!qobject_cast<QMdiSubWindow *>(window)) window = window->parentWidget();
  return static_cast<QMdiSubWindow *>(window);
}

}  // namespace

void PressKey(QWidget &box, Qt::Key key, const QString &text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&box, &press);
  QCoreApplication::sendEvent(&box, &release);
  DoEvents();
}

RichTextBox &OpenDocument(const QByteArray &bytes) {
  QTemporaryFile file;
  if (!file.open() || file.write(bytes) != bytes.size()) qFatal("no temporary file");
  file.close();
  FileCommands::LoadFileIntoNewEditor(file.fileName());
  return *mEditors::Active()->txthtml;
}

QPlainTextEdit &OpenBare(const QByteArray &bytes) {
  auto *bare = new QPlainTextEdit;
  bare->setLineWrapMode(QPlainTextEdit::NoWrap);
  bare->setFont(mEditors::Active()->txthtml->font());
  bare->setPlainText(QString::fromLatin1(bytes));
  QMdiSubWindow *window = mEditors::Area().addSubWindow(bare);
  window->setGeometry(mEditors::Active()->geometry());
  window->show();
  DoEvents();
  return *bare;
}

void TurnTo(QPlainTextEdit &box) {
  mEditors::Area().setActiveSubWindow(WindowOf(box));
  box.setFocus();
  DoEvents();
}

void Close(QPlainTextEdit &box) {
  QMdiSubWindow *window = WindowOf(box);
  if (auto *editor = qobject_cast<frmHTMLChild *>(window)) {
    mPublic::aEditorState[editor->Slot()].changed = false;
    Unload(*editor);
  } else {
    delete window;
  }
}

double TimeOfKey(QPlainTextEdit &box) {
  constexpr int keys = 200;
  static int run = 0;
  TurnTo(box);
  const int line = box.document()->blockCount() / 2 + ++run;
  QTextCursor cursor = box.textCursor();
  cursor.setPosition(box.document()->findBlockByNumber(line).position());
  box.setTextCursor(cursor);
  DoEvents();
  return Seconds([&box] {
           for (int key = 0; key < keys; ++key) PressKey(box, Qt::Key_X, QStringLiteral("x"));
         }) *
         1000 / keys;
}
