// Prints each figure beside that of the toolkit's bare widgets, measured in turn within one run.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "Compare.h"
#include "base/mFolders.h"
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
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 2 && arguments[1] == QLatin1String("start")) return PlayStart();
  if (arguments.size() == 3 && arguments[1] == QLatin1String("open"))
    return PlayOpening(arguments[2]);

  const QTemporaryDir folder;
  PrepareProgramFolder(folder);
  // The processes run one at a time, and before this one takes the instance lock.
  BenchStart();
  BenchOpening();
  if (!Default<frmStart>()->MayStart()) return 1;
  Default<mdiMain>()->timloadStencils->stop();
  DoEvents();
  BenchTyping();
  BenchTree();
  mForms::DestroyAll();
  return 0;
}
