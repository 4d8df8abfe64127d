#include "frame/WindowCommands.h"

#include <QMdiArea>
#include <QTimer>

#include "shared/FormsTest.h"

namespace {

using Answer = Dialogs::Answer;

class WindowCommandsTest : public FormsTest {
 protected:
  // An area of a size that can be reckoned with.
  WindowCommandsTest() {
    const QSize area = main->mdiArea->viewport()->size();
    main->resize(main->size() + QSize(960, 600) - area);
    DoEvents();
    EXPECT_EQ(main->mdiArea->viewport()->size(), QSize(960, 600));
  }

  void OpenPages(int count) {
    for (int page = 1; page <= count; ++page) Open(Name(page), "old");
  }

  // Runs the step at the second time that events are pumped: a command has begun then.
  static void InTheMiddle(std::function<void()> step) {
    QTimer::singleShot(0, [step = std::move(step)] { QTimer::singleShot(0, step); });
  }

  static QString Name(int page) { return QStringLiteral("%1.html").arg(page); }
  static QPointer<frmHTMLChild> &Window(int slot) { return mEditors::aEditorWindow[slot]; }
};

TEST_F(WindowCommandsTest, EveryWindowIsPlacedOrMinimisedWhateverStateItWasIn) {
  OpenPages(5);
  Window(2)->showMinimized();
  main->mdiArea->setActiveSubWindow(Window(4));
  Window(4)->showMaximized();
  DoEvents();
  WindowCommands::Cascade();
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_EQ(Window(slot)->geometry(), QRect(0, (slot - 1) * 150, 480, 150)) << slot;
  }
  EXPECT_EQ(Window(5)->geometry(), QRect(480, 0, 480, 150));
  for (int slot = 1; slot <= 5; ++slot) {
    EXPECT_EQ(Window(slot)->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized), 0);
    const QSize client = Window(slot)->txthtml->parentWidget()->size();
    EXPECT_EQ(Window(slot)->txthtml->geometry(),
              QRect(53, -1, client.width() - 52, client.height() + 2));
  }
  Window(3)->showMaximized();
  WindowCommands::AllMinimized();
  DoEvents();
  for (int slot = 1; slot <= 5; ++slot) EXPECT_TRUE(Window(slot)->isMinimized()) << slot;
}

TEST_F(WindowCommandsTest, TilesAreTenTwipsSmallerThanTheArea) {
  OpenPages(3);
  WindowCommands::TileHoricontally();
  EXPECT_EQ(Window(1)->geometry(), QRect(0, 0, 959, 199));
  EXPECT_EQ(Window(3)->geometry(), QRect(0, 399, 959, 199));
  WindowCommands::TileVertitally();
  EXPECT_EQ(Window(1)->geometry(), QRect(0, 0, 319, 599));
  EXPECT_EQ(Window(3)->geometry(), QRect(639, 0, 319, 599));
}

TEST_F(WindowCommandsTest, WhatHappensInTheMiddleStands) {
  OpenPages(4);
  InTheMiddle([] { Window(3)->close(); });
  WindowCommands::Cascade();
  EXPECT_TRUE(!Window(3) || Window(3)->IsUnloaded());
  EXPECT_EQ(Window(4)->geometry(), QRect(0, 450, 960, 150));
  EXPECT_EQ(mPublic::NextOpenEditor(0), 1) << "the walk begins anew";

  InTheMiddle(&WindowCommands::TileVertitally);
  WindowCommands::TileHoricontally();
  EXPECT_EQ(Window(4)->geometry(), QRect(639, 0, 319, 599)) << "the later command's place";

  dialogs.answers = {Answer::Yes};
  InTheMiddle([this] { main->close(); });
  WindowCommands::TileHoricontally();
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(mPublic::AnyEditorOpen());
}

TEST_F(WindowCommandsTest, CloseAllAsksOnceForEachChangedWindow) {
  OpenPages(4);
  for (int slot : {1, 2, 4}) Type(Window(slot), QStringLiteral("new "));
  dialogs.answers = {Answer::Yes, Answer::Cancel, Answer::No};
  WindowCommands::CloseAll();
  EXPECT_EQ(dialogs.messages.size(), 3);
  EXPECT_EQ(mPublic::CountOpenEditors(), 1);
  EXPECT_TRUE(Window(2)->isVisible() && mPublic::aEditorState[2].changed);
  EXPECT_EQ(Read(Name(1)), "new old\r\n");
  EXPECT_EQ(Read(Name(2)), "old");
  EXPECT_EQ(Read(Name(4)), "old");
}

TEST_F(WindowCommandsTest, TheMainWindowsOwnCommandsNeedNoDocument) {
  WindowCommands::Maximized();
  EXPECT_TRUE(main->isMaximized());
  WindowCommands::NormalSize();
  DoEvents();
  EXPECT_EQ(main->windowState() & Qt::WindowMaximized, 0);
  EXPECT_EQ(main->size(), QSize(1024, 742));
  main->resize(900, 600);
  WindowCommands::Minimized();
  WindowCommands::NormalSize();
  EXPECT_TRUE(main->isMinimized());
  EXPECT_EQ(main->size(), QSize(900, 600));
  main->showNormal();
  WindowCommands::NormalSize();
  EXPECT_EQ(main->size(), QSize(1024, 742));
  WindowCommands::Cascade();
  WindowCommands::CloseAll();
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

}  // namespace
