#pragma once

#include <QPlainTextEdit>
#include <QString>

#include "base/ForeignText.h"

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

  int GetLineFromChar(qsizetype position) const;
  qsizetype LineIndex(int line) const;             ///< start of a line, -1 if there is no such line
  qsizetype LineLength(qsizetype position) const;  ///< of the line at the position, without its end
  int CaretLine() const;
  int FirstVisibleLine() const;

  /// Loads a plain text file. False, with the text as it was, if it can't be read or has a line
  /// that is too long.
  bool LoadFile(const QString &path);

  /// Writes the text as it stands. False, with the old file whole, if that fails.
  bool SaveFile(const QString &path) const;

 protected:
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void inputMethodEvent(QInputMethodEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  bool canInsertFromMimeData(const QMimeData *source) const override;
  void insertFromMimeData(const QMimeData *source) override;
  QMimeData *createMimeDataFromSelection() const override;

 private:
  int DocumentPosition(qsizetype position) const;
  qsizetype TextPosition(int documentPosition) const;
  QString Enterable(const QString &text) const;
  bool Fits(const QTextCursor &target, const QString &text) const;
  bool KeyJoinsTooMuch(const QKeyEvent &event) const;

  int tabWidth_ = 8;
  ForeignText::Replacement foreignReplacement_ = ForeignText::NumericReference;
};
