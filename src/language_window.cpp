// Opens the window in which the texts of lang.dat are edited. No menu of the program leads there,
// so whoever translates, and the tour, starts it by itself.
#include <QApplication>

#include "frame/ProgramIcon.h"
#include "frame/frmLanguage.h"
#include "toolkit/mForms.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  application.setWindowIcon(ProgramIcon());
  auto *form = Default<frmLanguage>();
  form->setParent(nullptr, form->windowFlags());  // the main window stays hidden
  form->exec();
  mForms::DestroyAll();
  return 0;
}
