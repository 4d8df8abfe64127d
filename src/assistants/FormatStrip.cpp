#include "assistants/FormatStrip.h"

#include <QFocusEvent>

#include "assistants/ColourText.h"
#include "assistants/FormatText.h"
#include "assistants/ListText.h"
#include "assistants/frmFontcolors.h"
#include "assistants/frmInsertList.h"
#include "documents/Insertion.h"
#include "frame/RedrawToolStripCells.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"

namespace {

constexpr int fontButton = 1;
constexpr int lastTextButton = 9;
constexpr int sortedListButton = 14;

// Whether the user has moved the focus, not a window that came to the front or a menu that closed.
bool IsUsersTurn(const QFocusEvent &event) {
  return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

}  // namespace

FormatStrip::FormatStrip(mdiMain &main) : QObject(&main), main_(main) {
  connect(main.picButtons, &ToolStrip::ButtonUp, this, &FormatStrip::Press);
  for (QWidget *widget : std::initializer_list<QWidget *>{main.picColor, main.picFontColor,
                                                          main.cboFontStyle, main.cboFontsize}) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }
}

bool FormatStrip::eventFilter(QObject *watched, QEvent *event) {
  switch (event->type()) {
    case QEvent::MouseMove:
      if (watched != main_.picFontColor) RedrawToolStripCells();
      break;
    case QEvent::MouseButtonRelease:
      if (watched == main_.picColor) ShowFontColors();
      break;
    case QEvent::FocusIn:
      // The focus must have arrived before it goes on.
      if (watched == main_.picFontColor && IsUsersTurn(*static_cast<QFocusEvent *>(event))) {
        QMetaObject::invokeMethod(this, &FormatStrip::PickColour, Qt::QueuedConnection);
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

// The focus goes on, so that the button can get it again.
void FormatStrip::PickColour() {
  main_.picButtons->setFocus();
  ShowFontColors();
}

void FormatStrip::Press(int button) {
  if (!mPublic::AnyEditorOpen()) return;
  if (button == sortedListButton) {
    frmInsertList::Open(ListText::Sorted);
    return;
  }
  if (button > lastTextButton) {
    const std::array<QAction *, 8> assistants{
        main_.mnuAssistantsInsertHyperlink, main_.mnuAssistantsInsertImage,
        main_.mnuAssistantsInsertHorRule,   main_.mnuAssistantsInsertList,
        main_.mnuAssistantsInsertList,      main_.mnuAssistantsInsertTable,
        main_.mnuAssistantsInsertFrameset,  main_.mnuAssistantsInsertMetaTag};
    assistants[button - lastTextButton - 1]->trigger();
    return;
  }
  FormatText text = FormatText::OfButton(button);
  if (button == fontButton) {
    const QColor colour = main_.picColor->palette().color(QPalette::Window);
    text = FormatText::OfFont(
        main_.cboFontsize->currentIndex(), main_.cboFontStyle->currentText(),
        u'#' + ColourText::ZeroBehind(colour.red(), colour.green(), colour.blue()));
  }
  Insertion::Surround(text.opening, text.closing);
}
