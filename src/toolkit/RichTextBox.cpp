#include "toolkit/RichTextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "base/TextFile.h"
#include "base/WholeFile.h"
#include "base/mAnsi.h"
#include "base/mText.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

QString WithLineEnds(QString text) {
  return text.replace(QChar::ParagraphSeparator, lineEnd);
}

}  // namespace

RichTextBox::RichTextBox(QWidget *parent) : QPlainTextEdit(parent), colours_(document()) {
  setLineWrapMode(NoWrap);
  setAcceptDrops(false);
  setContextMenuPolicy(Qt::NoContextMenu);
  document()->setDocumentMargin(0);
  connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &RichTextBox::MakeCaretRoom);
  connect(document(), &QTextDocument::contentsChange, this, &RichTextBox::Follow);
  connect(this, &QPlainTextEdit::textChanged, this, &RichTextBox::ClearHit);
}

void RichTextBox::SetForeignReplacement(ForeignText::Replacement replacement) {
  foreignReplacement_ = std::move(replacement);
}

void RichTextBox::SetTabWidth(int blanks) {
  tabWidth_ = blanks;
  setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * blanks);
}

void RichTextBox::SetMargin(int left, int top) {
  setViewportMargins(left, top, 0, 0);
}

// The document ends with its longest line's last letter, and the caret stands behind that.
void RichTextBox::MakeCaretRoom(int, int maximum) {
  if (maximum == 0 || maximum == roomyMaximum_) return;
  roomyMaximum_ = maximum + 2 * cursorWidth();
  horizontalScrollBar()->setMaximum(roomyMaximum_);
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

QString RichTextBox::Piece(qsizetype start, qsizetype length) const {
  // Read with a character more at both ends, since a line end is one character of the document.
  QTextCursor cursor(document());
  const int from = DocumentPosition(std::max<qsizetype>(start - 1, 0));
  cursor.setPosition(from);
  cursor.setPosition(DocumentPosition(start + length + 1), QTextCursor::KeepAnchor);
  return mText::Mid(WithLineEnds(cursor.selectedText()), start - TextPosition(from) + 1, length);
}

// Not by a cursor: setting one lays its line out, seen or not.
QString RichTextBox::DocumentPiece(int start, qsizetype length) const {
  QString piece;
  QTextBlock block = document()->findBlock(start);
  qsizetype column = start - block.position();
  for (; block.isValid() && piece.size() < length; block = block.next(), column = 0) {
    const QString line = block.text();
    piece += QStringView(line).mid(column, length - piece.size());
    if (piece.size() < length && block.next().isValid()) piece += u'\n';
  }
  return piece;
}

int RichTextBox::CaretLine() const {
  return textCursor().blockNumber();
}

int RichTextBox::FirstVisibleLine() const {
  return firstVisibleBlock().blockNumber();
}

// ---- edits and colours

// The document counts its own end among what was removed and added, and says nothing of the text
// that setPlainText has taken away: then the lengths don't add up.
void RichTextBox::Follow(int position, int removed, int added) {
  const int before = length_;
  length_ = document()->characterCount() - 1;
  const int beyond = std::max(position + removed - before, 0);
  removed -= beyond;
  added -= beyond;
  if (before - removed + added != length_ || removed < 0 || added < 0) {
    position = 0;
    removed = before;
    added = length_;
  }
  colours_.Follow(position, removed, added);
  Q_EMIT Edited(position, removed, added);
}

void RichTextBox::SetColour(qsizetype start, qsizetype length, ColourSpans::Colour colour) {
  colours_.Set(DocumentPosition(start), DocumentPosition(start + length), colour);
}

void RichTextBox::ShowColours() {
  colours_.Show();
}

void RichTextBox::SetSelColor(ColourSpans::Colour colour) {
  const QTextCursor cursor = textCursor();
  colours_.Set(cursor.selectionStart(), cursor.selectionEnd(), colour);
  colours_.Show();
}

std::vector<ColourSpans::Span> RichTextBox::ColoursOfLine(int line) const {
  const QTextBlock block = document()->findBlockByNumber(line);
  auto spans = colours_.Within(block.position(), block.position() + block.length() - 1);
  for (auto &span : spans) {
    span.start -= block.position();
    span.end -= block.position();
  }
  return spans;
}

// ---- finding

qsizetype RichTextBox::Find(const QString &sought, qsizetype start, bool matchCase) {
  ClearHit();
  if (sought.isEmpty() || start > TextLength()) return -1;
  const auto sensitivity = matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
  const int from = DocumentPosition(start);
  QTextBlock block = document()->findBlock(from);
  qsizetype column = from - block.position();
  for (; block.isValid(); block = block.next(), column = 0) {
    const qsizetype found = block.text().indexOf(sought, column, sensitivity);
    if (found < 0) continue;
    QTextEdit::ExtraSelection hit;
    hit.cursor = QTextCursor(block);
    hit.cursor.setPosition(block.position() + int(found));
    hit.cursor.setPosition(block.position() + int(found + sought.size()), QTextCursor::KeepAnchor);
    hit.format.setBackground(QColor(255, 213, 0));
    hit.format.setForeground(Qt::black);
    setExtraSelections({hit});
    return TextPosition(hit.cursor.selectionStart());
  }
  return -1;
}

void RichTextBox::ClearHit() {
  setExtraSelections({});
}

void RichTextBox::ShowHit() {
  const auto marks = extraSelections();
  if (marks.isEmpty()) return;
  const QTextCursor &hit = marks.constFirst().cursor;
  QTextCursor start = hit;
  start.setPosition(hit.selectionStart());
  const auto place = [&] { return cursorRect(start).united(cursorRect(hit)); };
  QScrollBar &lines = *verticalScrollBar();
  QScrollBar &columns = *horizontalScrollBar();
  // A long line brings its scroll bar only when it is seen, and that takes height from the text.
  for (int look = 0; look < 2; ++look) {
    if (place().top() < 0 || place().bottom() >= viewport()->height()) {
      lines.setValue(start.blockNumber() - lines.pageStep() / 2);
    }
    if (place().left() < 0 || place().right() >= viewport()->width()) {
      columns.setValue(columns.value() + place().left() - viewport()->width() / 2);
    }
  }
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
  ClearHit();
  if (KeyJoinsTooMuch(*event)) return;
  constexpr Qt::KeyboardModifiers commands =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((event->modifiers() & commands) == Qt::AltModifier && !event->text().isEmpty()) {
    // A menu's letter that no menu has. It would be typed otherwise.
    event->ignore();
    return;
  }
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
  ClearHit();
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
