#include "frame/WindowCommands.h"

#include <QMdiArea>
#include <QTimer>

#include "shared/FormsTest.h"

namespace {

using Answer = Dialogs::Answer;

struct WindowCommandsTest : FormsTest {
  // An area of a size that can be reckoned with.
  WindowCommandsTest() {
    main->resize(main->size() + QSize(960, 600) - main->mdiArea->viewport()->size());
    DoEvents();
  }

  void OpenPages(int count) {
    while (count-- > 0) Open(QString::number(count), "old");
  }

  // Runs the step at the second time that events are pumped: a command has begun then.
  static void InTheMiddle(std::function<void()> step) {
    QTimer::singleShot(0, [step = std::move(step)] { QTimer::singleShot(0, step); });
  }

  static QPointer<frmHTMLChild> &Window(int slot) { return mEditors::aEditorWindow[slot]; }
};

TEST_F(WindowCommandsTest, EveryWindowIsPlacedOrMinimisedWhateverStateItWasIn) {
  OpenPages(5);
  Window(2)->showMinimized();
  main->mdiArea->setActiveSubWindow(Window(4));
  Window(4)->showMaximized();
  WindowCommands::Cascade();
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_EQ(Window(slot)->geometry(), QRect(0, (slot - 1) * 150, 480, 150)) << slot;
    EXPECT_FALSE(Window(slot)->isMinimized() || Window(slot)->isMaximized()) << slot;
  }
  EXPECT_EQ(Window(5)->geometry(), QRect(480, 0, 480, 150));
  WindowCommands::AllMinimized();
  DoEvents();
  for (int slot = 1; slot <= 5; ++slot) EXPECT_TRUE(Window(slot)->isMinimized()) << slot;
}

TEST_F(WindowCommandsTest, WhatHappensInTheMiddleStands) {
  OpenPages(4);
  InTheMiddle([] { Window(3)->close(); });
  WindowCommands::Cascade();
  EXPECT_EQ(Window(4)->geometry(), QRect(0, 450, 960, 150));
  EXPECT_EQ(mPublic::NextOpenEditor(0), 1) << "the walk begins anew";

  InTheMiddle(&WindowCommands::TileVertitally);
  WindowCommands::TileHoricontally();
  EXPECT_EQ(Window(4)->geometry(), QRect(639, 0, 319, 599)) << "the later command's place";
  WindowCommands::TileHoricontally();
  EXPECT_EQ(Window(4)->geometry(), QRect(0, 399, 959, 199)) << "ten twips less than the area";

  dialogs.answers = {Answer::Yes};
  InTheMiddle([this] { main->close(); });
  WindowCommands::TileHoricontally();
  EXPECT_EQ(ended, 1);
}

TEST_F(WindowCommandsTest, CloseAllAsksOnceForEachChangedWindow) {
  OpenPages(4);
  for (const int slot : {1, 2, 4}) Type(Window(slot), QStringLiteral("new "));
  dialogs.answers = {Answer::Yes, Answer::Cancel, Answer::No};
  WindowCommands::CloseAll();
  EXPECT_EQ(mPublic::CountOpenEditors(), 1);
  EXPECT_TRUE(Window(2)->isVisible() && mPublic::aEditorState[2].changed);
  EXPECT_EQ(Read(QStringLiteral("3")) + Read(QStringLiteral("0")), "new old\r\nold");
}

TEST_F(WindowCommandsTest, TheMainWindowsOwnCommandsNeedNoDocument) {
  WindowCommands::Maximized();
  EXPECT_TRUE(main->isMaximized());
  WindowCommands::NormalSize();
  DoEvents();
  EXPECT_EQ(main->size(), QSize(1024, 742));
  WindowCommands::Minimized();
  WindowCommands::NormalSize();
  EXPECT_TRUE(main->isMinimized());
}

}  // namespace
