#include "toolkit/CommonDialog.h"

#include <QFileInfo>

#include "toolkit/Dialogs.h"

bool CommonDialog::ShowOpen() {
  const auto chosen = Dialogs::Current().OpenFile({Filter, FileName, MayBeNew, DialogTitle});
  if (chosen) FileName = *chosen;
  return chosen.has_value();
}

bool CommonDialog::ShowSave() {
  const auto chosen = Dialogs::Current().SaveFile({Filter, FileName, false, DialogTitle});
  if (chosen) FileName = *chosen;
  return chosen.has_value();
}

QString CommonDialog::FileTitle() const {
  return QFileInfo(FileName).fileName();
}
