#include <QCoreApplication>
#include <QFile>

#include "Fuzz.h"

// Before the first input of a target that needs no window.
extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments) {
  qputenv("TAGWRIGHT_FOLDER", QFile::encodeName(Path({})));
  static const QCoreApplication application(*count, *arguments);
  return 0;
}
