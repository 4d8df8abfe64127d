#include "stencils/LoadStencilTrees.h"

#include "stencils/frmDatabaseIsLoading.h"
#include "toolkit/DoEvents.h"

namespace {

// A fixed count, not a clock: it lets the small window paint before the trees take the thread.
void PauseForPainting() {
  [[maybe_unused]] volatile int counted = 0;
  for (int round = 1; round <= 3'000'000; ++round) counted = round;
}

}  // namespace

void LoadStencilTrees(bool standard, bool selfBuilded) {
  auto *waiting = Default<frmDatabaseIsLoading>();
  waiting->show();
  waiting->repaint();
  DoEvents();
  PauseForPainting();
  // The trees keep their roots until they can be read from the library.
  Q_UNUSED(standard);
  Q_UNUSED(selfBuilded);
  mForms::UnloadDefaults({"frmDatabaseIsLoading"});
}
