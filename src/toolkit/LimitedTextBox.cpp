#include "toolkit/LimitedTextBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>

namespace {

constexpr int lineEndLength = 2;

QString WithLineEnds(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const QChar end :
       {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
    text.replace(end, u'\n');
  }
  return text.replace(u'\n', QStringLiteral("\r\n"));
}

// As much from the start as there is room for, without half a line end or half a character.
QString Fitting(const QString &text, qsizetype room) {
  const QString whole = WithLineEnds(text);
  QString fitting = whole.left(std::max<qsizetype>(room, 0));
  if (fitting.size() == whole.size() || fitting.isEmpty()) return fitting;
  if (fitting.back() == u'\r' || fitting.back().isHighSurrogate()) fitting.chop(1);
  return fitting;
}

// How many characters a key puts in, 0 if it does something else.
qsizetype TypedLength(const QKeyEvent &event) {
  if (event.matches(QKeySequence::InsertParagraphSeparator)) return lineEndLength;
  const QString text = event.text();
  const bool typed = !text.isEmpty() && (text.at(0) >= u' ' || text.at(0) == u'\t');
  return typed && text.at(0) != QChar(0x7f) ? text.size() : 0;
}

}  // namespace

LimitedTextBox::LimitedTextBox(QWidget *parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
}

QString LimitedTextBox::Text() const {
  return document()->isModified() ? ShownText() : set_;
}

QString LimitedTextBox::ShownText() const {
  return WithLineEnds(document()->toRawText());
}

void LimitedTextBox::SetText(const QString &text) {
  set_ = text;
  setPlainText(Fitting(text, maxLength_));
}

// What is selected gives way to what comes in.
qsizetype LimitedTextBox::Room() const {
  return maxLength_ - ShownText().size() + WithLineEnds(textCursor().selectedText()).size();
}

void LimitedTextBox::keyPressEvent(QKeyEvent *event) {
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    // There is one kind of line end.
    QKeyEvent plainReturn(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    keyPressEvent(&plainReturn);
    return;
  }
  if (const qsizetype typed = TypedLength(*event); typed > 0 && typed > Room()) {
    QApplication::beep();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void LimitedTextBox::inputMethodEvent(QInputMethodEvent *event) {
  QInputMethodEvent fitting(event->preeditString(), event->attributes());
  fitting.setCommitString(Fitting(event->commitString(), Room()), event->replacementStart(),
                          event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&fitting);
  event->setAccepted(fitting.isAccepted());
}

void LimitedTextBox::insertFromMimeData(const QMimeData *source) {
  const QString fitting = Fitting(source->text(), Room());
  if (fitting.isEmpty()) return;
  textCursor().insertText(fitting);
  ensureCursorVisible();
}
