#include <QWindow>

#include "documents/frmMemoPad.h"
#include "shared/FormsTest.h"
#include "toolkit/twips.h"

namespace {

using Answer = Dialogs::Answer;

class MemoPadTest : public FormsTest {
 protected:
  MemoPadTest() {
    ShowMemoPad();
    pad = Default<frmMemoPad>();
  }

  QPointer<frmMemoPad> pad;
};

TEST_F(MemoPadTest, EvenAnEmptyPadAsksBeforeItGoes) {
  EXPECT_FALSE(pad->parentWidget());
  EXPECT_EQ(pad->windowHandle()->transientParent(), main->windowHandle());
  EXPECT_EQ(pad->windowType(), Qt::Dialog) << "which the window manager keeps above";
  dialogs.answers = {Answer::No, Answer::Cancel, Answer::Yes};
  for (const bool stays : {true, true, false}) {
    EXPECT_EQ(pad->close(), !stays);
    EXPECT_EQ(pad->isVisible(), stays);
  }
  EXPECT_EQ(dialogs.messages.last(), QStringLiteral("Memo Pad Window Closing Message|"
                                                    "Close Memo Pad Window and lose all data?|1"));
  EXPECT_EQ(dialogs.messages.size(), 3);
  EXPECT_EQ(ended, 0);
}

TEST_F(MemoPadTest, HasItsSmallestSizeAndTheFontSizeOfThePreferences) {
  pad->resize(1, 1);
  EXPECT_EQ(pad->size(), QSize(twips(8115), twips(2655)));
  EXPECT_EQ(pad->txtMemoPad->size(), pad->size());
  EXPECT_EQ(pad->txtMemoPad->font().pointSizeF(), 8.0);
  const Preferences before = mPublic::recPreferences;
  mPublic::recPreferences.UseOtherAppProperties = true;
  mPublic::recPreferences.AppFontSize = 3;
  mPublic::WritePreferences();
  dialogs.answers = {Answer::Yes};
  pad->close();
  EXPECT_EQ(Default<frmMemoPad>()->txtMemoPad->font().pointSizeF(), 14.0);
  mPublic::recPreferences = before;
  mPublic::WritePreferences();
}

TEST_F(MemoPadTest, AKeptPadIsTheLastWindowAndEndsTheProgram) {
  Open(QStringLiteral("a.html"), "a");
  Type(Open(QStringLiteral("b.html"), "b"), QStringLiteral("x"));
  pad->txtMemoPad->setPlainText(QStringLiteral("a note"));
  dialogs.answers = {Answer::Yes, Answer::No, Answer::Cancel};
  EXPECT_TRUE(main->close());
  EXPECT_EQ(ended, 0);
  mForms::DestroyLaidAside();
  EXPECT_FALSE(main);
  EXPECT_TRUE(pad->isVisible());
  DoEvents();

  dialogs.answers = {Answer::No, Answer::Yes};
  EXPECT_FALSE(pad->close());
  EXPECT_EQ(pad->txtMemoPad->toPlainText(), QStringLiteral("a note"));
  EXPECT_EQ(ended, 0);
  EXPECT_TRUE(pad->close());
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(mForms::Find(QStringLiteral("mdiMain"))) << "nobody has made a second one";
}

TEST_F(MemoPadTest, GoesWithTheMainWindowIfItMay) {
  dialogs.answers = {Answer::Yes, Answer::Yes};
  EXPECT_TRUE(main->close());
  EXPECT_TRUE(pad->IsUnloaded());
  EXPECT_EQ(ended, 1);
}

TEST_F(MemoPadTest, NoHoldsUpNeitherTheQuitCommandNorTheProcessesEnd) {
  dialogs.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::No};
  main->mnuFileQuit->trigger();
  EXPECT_EQ(ended, 1);
  mPublic::bAppClosing = false;
  EXPECT_TRUE(Unload(*main, UnloadMode::TaskManager));
  EXPECT_EQ(ended, 2);
}

}  // namespace
