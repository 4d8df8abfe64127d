#include <QWindow>
#include <cstdlib>

#include "Compare.h"
#include "frame/frmStart.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

// From the start of the process until the main window is drawn, the splash left out.
void StartUntilDrawn() {
  mPublic::ReadPreferences();
  Default<frmStart>();
  auto *main = Default<mdiMain>();
  while (!main->windowHandle()->isExposed()) DoEvents();
  DoEvents();
}

}  // namespace

int PlayStart() {
  StartUntilDrawn();
  Default<mdiMain>()->repaint();
  _Exit(0);
}

int PlayOpening(const QString &file) {
  SetCommandLine(file);
  StartUntilDrawn();
  Default<mdiMain>()->repaint();
  _Exit(0);
}

void BenchStart() {
  const QString role = QStringLiteral("play-start");
  CompareProcesses(QStringLiteral("start to main window drawn"), OwnRole({role}),
                   {QStringLiteral(BARE_PROGRAM), role},
                   {.wallRatio = {}, .peakRatio = {}, .cpuAbove = 40, .rounds = 15});
}
