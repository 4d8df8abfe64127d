#pragma once

#include <QPlainTextEdit>
#include <QString>

#include "base/ColourSpans.h"
#include "base/ForeignText.h"
#include "toolkit/DocumentColours.h"

/// The text box of the editor windows.
///
/// Its text has CR LF line ends, and every position counts both characters, from 0. Lines are
/// paragraphs, they don't wrap, and are counted from 0. It never holds a character that the ANSI
/// code page lacks, nor a line longer than TextFile::LongestLine: an insertion that would make one
/// does nothing. It takes no drops, and a selection can't be dragged out of it.
class RichTextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit RichTextBox(QWidget *parent = nullptr);

  /// How characters that the code page lacks are written; at first as numeric references.
  void SetForeignReplacement(ForeignText::Replacement replacement);

  /// How many blanks wide a tab character is shown; at first 8.
  void SetTabWidth(int blanks);

  /// Pixels between the box's edges and its text, above and on the left; they stay where they are
  /// when the text is scrolled.
  void SetMargin(int left, int top);

  /// No-break spaces stay what they are, unlike in toPlainText.
  QString Text() const;

  /// Replaces the text and forgets the undo history. The text may have any line ends.
  void SetText(const QString &text);

  qsizetype TextLength() const;

  /// Start of the selection, or the caret. Setting it drops the selection; a position beyond the
  /// text means its end, one inside a line end means the end of that line.
  qsizetype SelStart() const;
  void SetSelStart(qsizetype position);

  /// Setting it selects from SelStart on.
  qsizetype SelLength() const;
  void SetSelLength(qsizetype length);

  /// Setting it replaces the selection, or inserts at the caret, as one undo step; the caret stands
  /// behind the new text. An empty text where nothing is selected touches nothing.
  QString SelText() const;
  void SetSelText(const QString &text);

  /// Colours a piece of the text, beside the undo history; black takes colour away. Seen after the
  /// next ShowColours.
  void SetColour(qsizetype start, qsizetype length, ColourSpans::Colour colour);
  void ShowColours();

  /// Colours the selection, at once.
  void SetSelColor(ColourSpans::Colour colour);

  /// The coloured spans of a line, in columns from 0.
  std::vector<ColourSpans::Span> ColoursOfLine(int line) const;

  /// Searches from a position on and marks the hit, unlike a selection, until the text changes, the
  /// user presses a key or a mouse button in the box, or the mark is taken away. The selection
  /// stays. Returns the hit's position, -1 if there is none or the sought text is empty.
  qsizetype Find(const QString &sought, qsizetype start, bool matchCase);

  /// Scrolls the mark of the last hit into view.
  void ShowHit();
  void ClearHit();

  int GetLineFromChar(qsizetype position) const;
  qsizetype LineIndex(int line) const;             ///< start of a line, -1 if there is no such line
  qsizetype LineLength(qsizetype position) const;  ///< of the line at the position, without its end
  QString Piece(qsizetype start, qsizetype length) const;  ///< of Text, fewer where it ends
  int CaretLine() const;
  int FirstVisibleLine() const;

  /// The same in the document's own positions, with a LF for a line end.
  QString DocumentPiece(int start, qsizetype length) const;

  /// Loads a plain text file. False, with the text as it was, if it can't be read or has a line
  /// that is too long.
  bool LoadFile(const QString &path);

  /// Writes the text as it stands. False, with the old file whole, if that fails.
  bool SaveFile(const QString &path) const;

 Q_SIGNALS:
  /// The text has been edited: removed characters at the position gave way to added ones. A line
  /// end is one character here, as in the document.
  void Edited(int position, int removed, int added);

 protected:
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void inputMethodEvent(QInputMethodEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  bool canInsertFromMimeData(const QMimeData *source) const override;
  void insertFromMimeData(const QMimeData *source) override;
  QMimeData *createMimeDataFromSelection() const override;

 private:
  void MakeCaretRoom(int minimum, int maximum);
  void Follow(int position, int removed, int added);
  int DocumentPosition(qsizetype position) const;
  qsizetype TextPosition(int documentPosition) const;
  QString Enterable(const QString &text) const;
  bool Fits(const QTextCursor &target, const QString &text) const;
  bool KeyJoinsTooMuch(const QKeyEvent &event) const;

  DocumentColours colours_;
  int roomyMaximum_ = 0;  ///< of the horizontal scroll bar, with room for the caret
  int length_ = 0;        ///< of the document before the edit that is being followed
  int tabWidth_ = 8;
  ForeignText::Replacement foreignReplacement_ = ForeignText::NumericReference;
};
