#include "toolkit/DoEvents.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace {
int depth = 0;
int loopPumpInterval = 10;
QElapsedTimer sinceLastPump;
}  // namespace

void DoEvents() {
  ++depth;
  QCoreApplication::processEvents();
  --depth;
  sinceLastPump.start();
}

void DoEventsInLoop() {
  if (!sinceLastPump.isValid()) sinceLastPump.start();
  if (sinceLastPump.elapsed() >= loopPumpInterval) DoEvents();
}

void SetLoopPumpInterval(int milliseconds) {
  loopPumpInterval = milliseconds;
}

bool DoEventsRunning() {
  return depth > 0;
}
