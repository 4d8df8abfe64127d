#include "documents/frmMemoPad.h"
#include "shared/FormsTest.h"

using Answer = Dialogs::Answer;

struct MemoPadTest : FormsTest {
  MemoPadTest() { ShowMemoPad(); }
  const QPointer<frmMemoPad> pad = Default<frmMemoPad>();
};

TEST_F(MemoPadTest, AKeptPadIsTheLastWindowAndEndsTheProgram) {
  Type(Open("b.html", "b"), "x");
  dialogs.answers = {Answer::Yes, Answer::No, Answer::Cancel};
  EXPECT_TRUE(main->close());
  mForms::DestroyLaidAside();
  DoEvents();
  EXPECT_TRUE(!main && pad->isVisible() && ended == 0);
  dialogs.answers = {Answer::No, Answer::Yes};
  EXPECT_TRUE(!pad->close() && pad->isVisible() && ended == 0);
  EXPECT_TRUE(pad->close() && ended == 1);
  EXPECT_EQ(dialogs.messages.last(),
            "Memo Pad Window Closing Message|Close Memo Pad Window and lose all data?|1");
  EXPECT_FALSE(mForms::Find("mdiMain")) << "nobody has made a second one";
}

TEST_F(MemoPadTest, GoesWithTheMainWindowIfItMay) {
  dialogs.answers = {Answer::Yes, Answer::Yes};
  EXPECT_TRUE(main->close() && ended == 1);
}

TEST_F(MemoPadTest, NoHoldsUpNeitherTheQuitCommandNorTheProcessesEnd) {
  dialogs.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::No};
  main->mnuFileQuit->trigger();
  EXPECT_EQ(ended, 1);
  mPublic::bAppClosing = false;
  EXPECT_TRUE(Unload(*main, UnloadMode::TaskManager) && ended == 2);
}
