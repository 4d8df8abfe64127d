#include "toolkit/UntrappedError.h"

#include "toolkit/Dialogs.h"

void ShowUntrappedError(const QString &path, const QString &systemText) {
  Dialogs::Current().Message(path + u'\n' + systemText, Dialogs::Buttons::Ok,
                             Dialogs::Icon::Critical, QStringLiteral("tagwright"));
}
