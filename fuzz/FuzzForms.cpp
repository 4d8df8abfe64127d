#include <sanitizer/lsan_interface.h>

#include <QApplication>
#include <QDir>
#include <cstdlib>

#include "Fuzz.h"
#include "toolkit/Dialogs.h"

namespace {

// A user who cancels everything.
class NoDialogs : public Dialogs {
  Answer Message(const QString &, Buttons, Icon, const QString &) override {
    return Answer::Cancel;
  }
  std::optional<QString> OpenFile(const FileRequest &) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest &) override { return {}; }
  std::optional<QColor> Colour(const QColor &) override { return {}; }
  std::optional<PrintChoice> Print(PrintRange) override { return {}; }
};

}  // namespace

// The library that looks for fonts holds what it has found by pointers that a leak checker can't
// see.
extern "C" const char *__lsan_default_suppressions() {
  return "leak:libfontconfig.so";
}

// Before the first input of a target with windows, which find the delivered files.
extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  for (const char *folder :
       {"TAGWRIGHT_FOLDER", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
    qputenv(folder, QFile::encodeName(Path({})));
  }
  const QDir delivered(QStringLiteral(TAGWRIGHT_DATA_DIR));
  for (const QString &name :
       delivered.entryList({QStringLiteral("*.dat"), QStringLiteral("*.htf")})) {
    QFile::copy(delivered.filePath(name), Path(name));
  }
  static QApplication application(*count, *arguments);
  application.setQuitOnLastWindowClosed(false);
  Dialogs::Set(std::make_unique<NoDialogs>());
  // The toolkit's own static objects don't stand being taken down behind the application.
  on_exit([](int status, void *) { std::_Exit(__lsan_do_recoverable_leak_check() ? 1 : status); },
          nullptr);
  return 0;
}
