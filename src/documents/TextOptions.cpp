#include "documents/TextOptions.h"

#include "documents/mEditors.h"
#include "toolkit/ToolStrip.h"

namespace TextOptions {

namespace {

constexpr double sizeStep = 1.25;  // points
constexpr int levelStep = 10;

void SetFontSize(RichTextBox &box, double points) {
  if (points <= 0) return;
  QFont font = box.font();
  font.setPointSizeF(points);
  box.setFont(font);
}

// The whole text is selected for its new size, and the selection given up where it begins.
void SetTextSize(double points) {
  if (!mPublic::AnyEditorOpen()) return;
  if (frmHTMLChild *editor = mEditors::Active()) {
    editor->txthtml->SetSelStart(0);
    SetFontSize(*editor->txthtml, points);
  }
}

double TextSize() {
  const frmHTMLChild *editor = mEditors::Active();
  return editor ? editor->txthtml->font().pointSizeF() : 0;
}

void ChangeLevels(int by) {
  for (qint16 &level : mPublic::aFormatColor) level = qint16(level + by);
}

void Toggle(ToolStrip &strip, int button, const QColor &square) {
  quint8 &highlight = mPublic::TagHighlight[button];
  highlight = highlight == 1 ? 0 : 1;
  strip.SetSquare(button, highlight == 1 ? square : QColor());
}

// The numbers take the size of the text beside them.
void MatchLineNumbers() {
  frmHTMLChild *editor = mEditors::Active();
  if (!editor) return;
  SetFontSize(*editor->rtfLineNumber, editor->txthtml->font().pointSizeF());
  editor->SyncLineNumbers(frmHTMLChild::AllLineNumbers);
}

}  // namespace

void Press(ToolStrip &strip, int button) {
  const bool open = mPublic::AnyEditorOpen();
  const int red = mPublic::aFormatColor[0];
  switch (button) {
    case 1:
      Toggle(strip, button, QColor(80, 0, 0));
      break;
    case 2:
      Toggle(strip, button, QColor(0, 80, 0));
      break;
    case 3:
      Toggle(strip, button, QColor(0, 0, 80));
      break;
    case 4:
      mPublic::ReadPreferences();
      SetTextSize(mPublic::recPreferences.EditorFontSize);
      break;
    case 5:
      SetTextSize(TextSize() + sizeStep);
      break;
    case 6:
      SetTextSize(TextSize() - sizeStep);
      break;
    case 7:
      if (open && red < 246) ChangeLevels(levelStep);
      break;
    case 8:
      if (open && red >= 40) ChangeLevels(-levelStep);
      break;
    default:
      break;
  }
  if (button <= 6) MatchLineNumbers();
}

}  // namespace TextOptions
