#include "toolkit/RichTextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <algorithm>

#include "base/TextFile.h"
#include "base/WholeFile.h"
#include "base/mAnsi.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

QString WithLineEnds(QString text) {
  return text.replace(QChar::ParagraphSeparator, lineEnd);
}

}  // namespace

RichTextBox::RichTextBox(QWidget *parent) : QPlainTextEdit(parent) {
  setLineWrapMode(NoWrap);
  setAcceptDrops(false);
  setContextMenuPolicy(Qt::NoContextMenu);
}

void RichTextBox::SetForeignReplacement(ForeignText::Replacement replacement) {
  foreignReplacement_ = std::move(replacement);
}

void RichTextBox::SetTabWidth(int blanks) {
  tabWidth_ = blanks;
  setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * blanks);
}

void RichTextBox::changeEvent(QEvent *event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) SetTabWidth(tabWidth_);
}

// ---- text and positions

QString RichTextBox::Text() const {
  return WithLineEnds(document()->toRawText());
}

void RichTextBox::SetText(const QString &text) {
  setPlainText(Enterable(text));
}

qsizetype RichTextBox::TextLength() const {
  return TextPosition(document()->characterCount() - 1);
}

// The document counts one character for a line end where the text has two, so a position differs by
// the number of lines before it. Blocks are found by number in logarithmic time, never by walking.
qsizetype RichTextBox::TextPosition(int documentPosition) const {
  return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

int RichTextBox::DocumentPosition(qsizetype position) const {
  if (position <= 0) return 0;
  int first = 0;
  int last = document()->blockCount() - 1;
  while (first < last) {
    const int middle = first + (last - first + 1) / 2;
    if (document()->findBlockByNumber(middle).position() + middle <= position) {
      first = middle;
    } else {
      last = middle - 1;
    }
  }
  const QTextBlock block = document()->findBlockByNumber(first);
  const qsizetype column = position - (block.position() + first);
  return block.position() + int(std::min<qsizetype>(column, block.length() - 1));
}

qsizetype RichTextBox::SelStart() const {
  return TextPosition(textCursor().selectionStart());
}

void RichTextBox::SetSelStart(qsizetype position) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(DocumentPosition(position));
  setTextCursor(cursor);
}

qsizetype RichTextBox::SelLength() const {
  const QTextCursor cursor = textCursor();
  return TextPosition(cursor.selectionEnd()) - TextPosition(cursor.selectionStart());
}

void RichTextBox::SetSelLength(qsizetype length) {
  QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  const qsizetype end = TextPosition(start) + std::max<qsizetype>(length, 0);
  cursor.setPosition(start);
  cursor.setPosition(DocumentPosition(end), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

QString RichTextBox::SelText() const {
  return WithLineEnds(textCursor().selectedText());
}

void RichTextBox::SetSelText(const QString &text) {
  QTextCursor cursor = textCursor();
  if (text.isEmpty() && !cursor.hasSelection()) return;
  const QString enterable = Enterable(text);
  if (!Fits(cursor, enterable)) return;
  cursor.beginEditBlock();
  cursor.insertText(enterable);
  cursor.endEditBlock();
  setTextCursor(cursor);
}

// ---- lines

int RichTextBox::GetLineFromChar(qsizetype position) const {
  return document()->findBlock(DocumentPosition(position)).blockNumber();
}

qsizetype RichTextBox::LineIndex(int line) const {
  const QTextBlock block = document()->findBlockByNumber(line);
  return block.isValid() ? block.position() + line : -1;
}

qsizetype RichTextBox::LineLength(qsizetype position) const {
  return document()->findBlock(DocumentPosition(position)).length() - 1;
}

int RichTextBox::CaretLine() const {
  return textCursor().blockNumber();
}

int RichTextBox::FirstVisibleLine() const {
  return firstVisibleBlock().blockNumber();
}

// ---- files

bool RichTextBox::LoadFile(const QString &path) {
  const auto text = TextFile::Read(path);
  if (text) setPlainText(*text);
  return text.has_value();
}

bool RichTextBox::SaveFile(const QString &path) const {
  return WriteWholeFile(path, mAnsi::ToAnsi(Text()));
}

// ---- what the user puts in

QString RichTextBox::Enterable(const QString &text) const {
  return ForeignText::Replaced(text, foreignReplacement_);
}

bool RichTextBox::Fits(const QTextCursor &target, const QString &text) const {
  const QTextBlock first = document()->findBlock(target.selectionStart());
  const QTextBlock last = document()->findBlock(target.selectionEnd());
  const qsizetype before = target.selectionStart() - first.position();
  const qsizetype behind = last.position() + last.length() - 1 - target.selectionEnd();
  if (before + text.size() + behind <= TextFile::LongestLine) return true;
  const auto isLineEnd = [](QChar c) { return c == u'\r' || c == u'\n'; };
  const auto firstEnd = std::find_if(text.begin(), text.end(), isLineEnd);
  if (firstEnd == text.end()) return false;
  const auto lastEnd = std::find_if(text.rbegin(), text.rend(), isLineEnd);
  return before + (firstEnd - text.begin()) <= TextFile::LongestLine &&
         behind + (lastEnd - text.rbegin()) <= TextFile::LongestLine &&
         TextFile::LongestLineIn(text) <= TextFile::LongestLine;
}

// Deleting can join two lines to one that is too long; the largest piece that one key may join is
// the caret's line and its neighbours.
bool RichTextBox::KeyJoinsTooMuch(const QKeyEvent &event) const {
  QTextCursor reach = textCursor();
  if (event.key() != Qt::Key_Backspace && event.key() != Qt::Key_Delete &&
      !event.matches(QKeySequence::Cut)) {
    return false;
  }
  if (!reach.hasSelection()) {
    reach.movePosition(event.key() == Qt::Key_Backspace ? QTextCursor::PreviousCharacter
                                                        : QTextCursor::NextCharacter,
                       QTextCursor::KeepAnchor);
  }
  return !Fits(reach, {});
}

void RichTextBox::keyPressEvent(QKeyEvent *event) {
  if (KeyJoinsTooMuch(*event)) return;
  const QString text = event->text();
  const bool typed = !text.isEmpty() && (text.at(0).isPrint() || text.at(0).isHighSurrogate());
  if (typed && !isReadOnly() && !(mAnsi::Holds(text) && Fits(textCursor(), text))) {
    SetSelText(text);
    ensureCursorVisible();
    return;
  }
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    // A line separator would be a line end that the document doesn't count as a line.
    QKeyEvent plainReturn(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QPlainTextEdit::keyPressEvent(&plainReturn);
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void RichTextBox::inputMethodEvent(QInputMethodEvent *event) {
  QString commit = Enterable(event->commitString());
  if (!Fits(textCursor(), commit)) commit.clear();
  QInputMethodEvent enterable(event->preeditString(), event->attributes());
  enterable.setCommitString(commit, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&enterable);
  event->setAccepted(enterable.isAccepted());
}

void RichTextBox::mousePressEvent(QMouseEvent *event) {
  // A press inside the selection would begin to drag it; without a selection it can't.
  if (event->button() == Qt::LeftButton && !(event->modifiers() & Qt::ShiftModifier)) {
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
  }
  QPlainTextEdit::mousePressEvent(event);
}

bool RichTextBox::canInsertFromMimeData(const QMimeData *source) const {
  return source->hasText();
}

void RichTextBox::insertFromMimeData(const QMimeData *source) {
  if (isReadOnly()) return;
  SetSelText(source->text());
  ensureCursorVisible();
}

QMimeData *RichTextBox::createMimeDataFromSelection() const {
  // Other programs show a CR as a stray character, so the clipboard has lone LFs.
  auto *data = new QMimeData;
  data->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  return data;
}
