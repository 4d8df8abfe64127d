#include <QApplication>

#include "frame/CommandLine.h"
#include "frame/ProgramIcon.h"
#include "frame/frmStart.h"
#include "frame/mdiMain.h"

int main(int argc, char **argv) {
  // The command line is one file name, so the toolkit gets none of it to look for options in.
  SetCommandLine(CommandLineText(argc, argv));
  int programOnly = 1;
  QApplication application(programOnly, argv);
  application.setWindowIcon(ProgramIcon());
  application.setQuitOnLastWindowClosed(false);
  const int status = Default<frmStart>()->MayStart() ? application.exec() : 1;
  mForms::DestroyAll();
  return status;
}
