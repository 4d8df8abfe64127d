#include "assistants/OpenAssistant.h"

void ShowFromStart(QDialog &dialog) {
  dialog.show();
  for (QWidget *control = dialog.nextInFocusChain(); control != &dialog;
       control = control->nextInFocusChain()) {
    if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled() && control->isVisible()) {
      return control->setFocus();
    }
  }
}
