#pragma once

#include <QObject>

#include "toolkit/FrozenPainting.h"
#include "toolkit/OneAtATime.h"

class QKeyEvent;
class frmHTMLChild;

/// What keys and mouse do in the text of an editor window beside what the box does itself: the
/// changed mark, the indent, the line numbers in step, and the colouring of a line that the caret
/// leaves. Owned by its window.
class EditorEvents : public QObject {
  Q_OBJECT

 public:
  explicit EditorEvents(frmHTMLChild *editor);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool Handle(QEvent &event);
  bool KeyDown(const QKeyEvent &key);
  void KeyUp(const QKeyEvent &key);
  void MouseDown();
  void MouseMove();
  void MouseMoveOnce();
  void MouseUp();
  void MarkAsTyped();
  void InsertIndent();
  void Colour();

  frmHTMLChild *editor_;
  FrozenPainting *painting_;
  OneAtATime move_;
};
