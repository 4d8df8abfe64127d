#include <QApplication>
#include <QTimer>
#include <csignal>
#include <cstdlib>

#include "base/mFolders.h"
#include "documents/Journal.h"
#include "documents/JournalFile.h"
#include "frame/CommandLine.h"
#include "frame/ProgramIcon.h"
#include "frame/frmStart.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/EndProgram.h"
#include "toolkit/EndRequests.h"

namespace {

// A loop that pumps events comes to its end by itself, but nobody waits for it longer than this.
constexpr int patience = 2000;  // milliseconds

void EndWithoutAQuestion(Journal &journal) {
  journal.End();
  mPublic::bAppClosing = true;
  EndProgram();
  QTimer::singleShot(patience, [] { std::_Exit(EXIT_SUCCESS); });
}

}  // namespace

int main(int argc, char **argv) {
  // The command line is one file name, so the toolkit gets none of it to look for options in.
  SetCommandLine(CommandLineText(argc, argv));
  int programOnly = 1;
  QApplication application(programOnly, argv);
  // A file beyond the size that the process may write is a write that fails, not its end. Heard
  // rather than ignored: programs that are started would inherit that.
  std::signal(SIGXFSZ, [](int) {});
  application.setWindowIcon(ProgramIcon());
  application.setQuitOnLastWindowClosed(false);
  Journal journal(JournalFolder(mFolders::ProgramFolder()), &application);
  const EndRequests requests([&journal] { journal.WriteNow(); },
                             [&journal] { EndWithoutAQuestion(journal); });
  const int status = Default<frmStart>()->MayStart() ? RunProgram() : 1;
  journal.End();
  mForms::DestroyAll();
  return status;
}
