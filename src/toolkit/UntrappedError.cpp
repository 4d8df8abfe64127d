#include "toolkit/UntrappedError.h"

#include <QFile>

#include "toolkit/Dialogs.h"

void ShowUntrappedError(const QString &path, const QString &systemText) {
  Dialogs::Current().Message(path + u'\n' + systemText, Dialogs::Buttons::Ok,
                             Dialogs::Icon::Critical, QStringLiteral("tagwright"));
}

bool ReadableOrTold(const QString &path) {
  QFile file(path);
  if (!file.exists() || file.open(QIODevice::ReadOnly)) return true;
  ShowUntrappedError(path, file.errorString());
  return false;
}
