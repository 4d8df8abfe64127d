#include "documents/SaveQuestion.h"

Dialogs::Answer AskWhetherToSave() {
  return Dialogs::Current().Message(QStringLiteral("Do you want to save this file?"),
                                    Dialogs::Buttons::YesNoCancel, Dialogs::Icon::None,
                                    QStringLiteral("Question"));
}
