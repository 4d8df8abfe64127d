#include "documents/Printing.h"

#include <QPointer>

#include "base/mText.h"
#include "documents/mEditors.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"

bool PrintText(Printer &printer, const QString &text, int fontSize,
               std::optional<Printer::Position> position) {
  if (!position) printer.SetFontSize(fontSize);
  printer.Print(text, position.value_or(Printer::Position::NextLine));
  DoEvents();
  printer.NewPage();
  return printer.EndDoc();
}

void PrintCommand() {
  using Range = Dialogs::PrintRange;
  if (!mPublic::AnyEditorOpen()) return;
  const QPointer<frmHTMLChild> editor = mEditors::Active();
  if (!editor) return;
  const bool selected = editor->txthtml->SelLength() > 0;
  const auto choice = Dialogs::Current().Print(selected ? Range::Selection : Range::All);
  if (!choice || choice->range == Range::Pages) return;
  for (int copy = 0; copy < choice->copies; ++copy) {
    // The user may close the document while it is being printed.
    if (!editor || editor->IsUnloaded()) return;
    const RichTextBox &box = *editor->txthtml;
    PrintText(*choice->printer, choice->range == Range::Selection ? box.SelText() : box.Text(),
              int(mText::RoundToEven(box.font().pointSizeF())));
  }
}
