// Prints each figure beside that of the toolkit's bare widgets, measured in turn within one run.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "Compare.h"
#include "base/mFolders.h"
#include "frame/ProgramIcon.h"
#include "frame/frmStart.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

// A program folder of the benchmark's own, with the splash switched off; for its processes too.
void PrepareProgramFolder(const QTemporaryDir &folder) {
  const QDir delivered(QCoreApplication::applicationDirPath() + QStringLiteral("/.."));
  for (const QString &name :
       delivered.entryList({QStringLiteral("*.dat"), QStringLiteral("*.htf")})) {
    QFile::copy(delivered.filePath(name), folder.filePath(name));
  }
  qputenv("TAGWRIGHT_FOLDER", QFile::encodeName(folder.path()));
  mPublic::recPreferences = StandardPreferences();
  mPublic::recPreferences.ShowStartWindow = false;
  mPublic::WritePreferences();
}

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QApplication::setWindowIcon(ProgramIcon());
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 2 && arguments[1] == QLatin1String("play-start")) return PlayStart();
  if (arguments.size() == 3 && arguments[1] == QLatin1String("open"))
    return PlayOpening(arguments[2]);

  const QTemporaryDir folder;
  PrepareProgramFolder(folder);
  const auto wanted = [&arguments](const char *name) {
    return arguments.size() < 2 || arguments.contains(QLatin1String(name));
  };
  // The processes run one at a time, and before this one takes the instance lock.
  if (wanted("start")) BenchStart();
  if (wanted("opening")) BenchOpening();
  if (!Default<frmStart>()->MayStart()) return 1;
  Default<mdiMain>()->timloadStencils->stop();
  DoEvents();
  if (wanted("memory")) BenchMemory();
  if (wanted("typing")) BenchTyping();
  if (wanted("journal")) BenchJournal();
  if (wanted("colouring")) BenchColouring();
  if (wanted("moves")) BenchMoves();
  if (wanted("stencils")) BenchStencils();
  if (wanted("tree")) BenchTree();
  if (wanted("arrange")) BenchArrange();
  if (wanted("assistants")) BenchAssistants();
  if (wanted("compiler")) BenchCompiler();
  if (wanted("images")) BenchImages();
  mForms::DestroyAll();
  return AllWithinLimits() ? 0 : 1;
}
