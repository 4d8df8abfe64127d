#pragma once

#include <QPlainTextEdit>
#include <QString>

/// A plain text box of several lines that takes no more than a number of characters, whichever way
/// they come in: what is beyond it is cut from what comes in, not from what stands there. Its text
/// has CR LF line ends, and both characters count.
class LimitedTextBox : public QPlainTextEdit {
  Q_OBJECT
  Q_PROPERTY(int maxLength READ MaxLength WRITE SetMaxLength)

 public:
  explicit LimitedTextBox(QWidget *parent = nullptr);

  int MaxLength() const { return maxLength_; }
  void SetMaxLength(int length) { maxLength_ = length; }

  /// What was set, to the letter, as long as nobody has edited it: what the box can't hold, such as
  /// lone line feeds, comes back whole. No-break spaces stay what they are, unlike in toPlainText.
  QString Text() const;

  /// Replaces the text, shown cut to the limit, and forgets the undo history. Any line ends will
  /// do.
  void SetText(const QString &text);

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void inputMethodEvent(QInputMethodEvent *event) override;
  void insertFromMimeData(const QMimeData *source) override;

 private:
  QString ShownText() const;
  qsizetype Room() const;

  QString set_;  ///< what SetText got
  int maxLength_ = 32767;
};
