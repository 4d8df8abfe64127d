#include "documents/ColourEditorLine.h"

#include <QPointer>
#include <QTextBlock>

#include "documents/ColourLeftLine.h"
#include "documents/frmHTMLChild.h"
#include "frame/mPublic.h"
#include "toolkit/DoEvents.h"

namespace {

class EditorText : public ColourableText {
 public:
  explicit EditorText(frmHTMLChild &editor) : editor_(&editor), box_(*editor.txthtml) {}

  qsizetype LineIndex(int line) const override { return box_.LineIndex(line); }
  qsizetype LineLength(qsizetype position) const override { return box_.LineLength(position); }
  QString Piece(qsizetype start, qsizetype length) const override {
    return box_.Piece(start, length);
  }
  int GetLineFromChar(qsizetype position) const override { return box_.GetLineFromChar(position); }
  int LineOf(Landmarks::Landmark landmark) const override {
    const int position = editor_->landmarks.Position(landmark);
    return position < 0 ? 0 : box_.document()->findBlock(position).blockNumber();
  }
  void SetColour(qsizetype start, qsizetype length, quint32 colour) override {
    box_.SetColour(start, length, colour);
  }
  bool Pump() override {
    const int revision = box_.document()->revision();
    DoEventsInLoop();
    return editor_ && !editor_->IsUnloaded() && box_.document()->revision() == revision;
  }

 private:
  QPointer<frmHTMLChild> editor_;
  RichTextBox &box_;
};

TagColours ColoursNow() {
  const auto &[red, green, blue, grey] = mPublic::aFormatColor;
  return {mPublic::TagHighlight[1] == 1,
          mPublic::TagHighlight[2] == 1,
          mPublic::TagHighlight[3] == 1,
          red,
          green,
          blue,
          grey};
}

}  // namespace

void ColourEditorLine(frmHTMLChild &editor) {
  const QPointer<frmHTMLChild> self(&editor);
  const int caretLine = editor.txthtml->CaretLine();
  EditorText text(editor);
  ColourLeftLine(text, caretLine, editor.lineOfLastPass, ColoursNow());
  if (!self || self->IsUnloaded()) return;
  // What the pass has coloured is seen at once, at its end.
  editor.txthtml->ShowColours();
  editor.lineOfLastPass = caretLine;
}
