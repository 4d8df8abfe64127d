#include "toolkit/EndRequests.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <csignal>

#include "toolkit/DoEvents.h"

namespace {

TEST(EndRequests, ASignalEndsEvenADialogAndTheNextOneHasItsDefaultAction) {
  for (const int request : {SIGTERM, SIGHUP, SIGINT}) {
    QDialog dialog;
    const EndRequests requests([] {}, [&] { dialog.done(7); });
    QTimer::singleShot(0, [request] { std::raise(request); });
    EXPECT_EQ(dialog.exec(), 7);
    EXPECT_EQ(std::signal(request, SIG_DFL), SIG_DFL);
  }
}

TEST(EndRequests, AHangupThatIsIgnoredStaysSo) {
  std::signal(SIGHUP, SIG_IGN);
  const EndRequests requests([] {}, [] { ADD_FAILURE(); });
  std::raise(SIGHUP);
  DoEvents();
}

// What the toolkit makes of the desktop's last word in a logout.
TEST(EndRequests, TheDesktopsQuitEndsWithoutClosingWindows) {
  QDialog window;
  window.show();
  int ends = 0;
  const EndRequests requests([] {}, [&ends] { ++ends; });
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &quit);
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(window.isVisible());
}

}  // namespace
