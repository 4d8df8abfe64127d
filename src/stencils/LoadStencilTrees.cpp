#include "stencils/LoadStencilTrees.h"

#include <QPointer>

#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "stencils/FillStencilTree.h"
#include "stencils/StencilFiles.h"
#include "stencils/frmDatabaseIsLoading.h"
#include "toolkit/DoEvents.h"

namespace {

// A fixed count, not a clock: it lets the small window paint before the trees take the thread.
void PauseForPainting() {
  [[maybe_unused]] volatile int counted = 0;
  for (int round = 1; round <= 3'000'000; ++round) counted = round;
}

// Without the option for a fast load the user can act while the tree is filled.
void LoadStandardTree(mdiMain &main) {
  mPublic::ReadPreferences();
  const bool fast = mPublic::recPreferences.ForceDatabaseLoading;
  FillStencilTree(*main.trwStencils, StencilFiles::StandardPath(), standardStencils, [fast] {
    if (!fast) DoEventsInLoop();
    return true;
  });
}

void LoadSelfBuiltTree(mdiMain &main) {
  FillStencilTree(*main.trwSelfBuildedStencils,
                  StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt), selfBuildedStencils);
}

}  // namespace

void BehindWaitWindow(const std::function<void()> &work) {
  auto *waiting = Default<frmDatabaseIsLoading>();
  waiting->show();
  waiting->repaint();
  DoEvents();
  work();
  mForms::UnloadDefaults({"frmDatabaseIsLoading"});
}

void LoadStencilTrees(bool standard, bool selfBuilded) {
  const QPointer<mdiMain> main = Default<mdiMain>();
  BehindWaitWindow([&] {
    PauseForPainting();
    if (standard && main) LoadStandardTree(*main);
    if (selfBuilded && main) LoadSelfBuiltTree(*main);
  });
}
