#pragma once

#include <QMdiSubWindow>
#include <QPushButton>
#include <QString>

#include "documents/DocumentJournal.h"
#include "documents/Landmarks.h"
#include "toolkit/RichTextBox.h"
#include "toolkit/mForms.h"

/// An editor window, which is the document: its text is that of txthtml, its name the caption, its
/// slot the tag. Owns its text; nothing else holds a document.
class frmHTMLChild : public FormOf<QMdiSubWindow> {
  Q_OBJECT

 public:
  frmHTMLChild();

  RichTextBox *txthtml;
  RichTextBox *rtfLineNumber;
  QPushButton *cmdDummy;  ///< never seen; a control that can take the focus

  /// The full path of the file, or exactly "<unsaved>".
  const QString &Caption() const { return caption_; }
  void SetCaption(const QString &caption);

  /// The slot number as text; empty for a window without a slot.
  QString Tag;

  /// The zero-based first visible line that the line numbers were last built for.
  int firstNumberedLine = 0;

  /// The zero-based line that the caret stood on at the end of the last colouring pass or when the
  /// mouse was last released.
  int lineOfLastPass = 0;

  /// Where head and body of the page begin and end, in positions of the document.
  Landmarks landmarks;

  /// Keeps what hasn't been saved. Whoever saves the text tells it.
  DocumentJournal *journal;

  /// The slot that the tag names, 0 for a window without one.
  int Slot() const;

  void Load() override;
  bool QueryUnload(UnloadMode mode) override;
  void Unloaded() override;

  /// The first layout of a new window. Pumps events: the window may be gone afterwards.
  void PlaceBoxes();

  /// The last step of arranging the windows: the text stands two pixels further right than after a
  /// change of size. Pumps events: the window may be gone afterwards.
  void PlaceText();

  static constexpr int AllLineNumbers = 200;

  /// Builds so many line numbers anew if the first visible line is another than the one that they
  /// were last built for.
  void SyncLineNumbers(int count);

  /// Makes this the active document, as when the user turns to its window.
  void GotFocus();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  void Resize();
  void RepairLayout();
  void UsePaper();
  void FollowLandmarks(int position, int removed, int added);

  QString caption_;
  QWidget *client_;
};
