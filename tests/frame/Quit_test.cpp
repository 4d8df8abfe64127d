#include <QDir>

#include "base/mPlatform.h"
#include "shared/FormsTest.h"

using Qt::StringLiterals::operator""_s;

namespace {

using Answer = Dialogs::Answer;

struct QuitTest : FormsTest {
  QuitTest() {
    QDir().mkpath(mPlatform::Current().temporaryFolder);
    PutFile(output, "");
  }

  // Quits with changed documents, whose questions are answered Yes, No, Cancel and Yes, which then
  // can't be saved.
  void QuitWithFour(const std::function<void()> &quit) {
    for (const QChar name : u"abcd"_s) Type(Open(name, "old"), u"new "_s);
    mEditors::aEditorWindow[4]->SetCaption(Path(u"gone/d"_s));
    dialogs.answers = {Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel, Answer::Yes};
    quit();
    EXPECT_EQ(dialogs.messages.size(), 5);
    EXPECT_EQ(dialogs.messages.first(),
              u"nimbara works tagwright - v1.100|Do you want to exit?|1"_s);
    EXPECT_EQ(Read(u"a"_s) + Read(u"b"_s) + Read(u"c"_s) + Read(u"d"_s), "new old\r\noldoldold");
    EXPECT_FALSE(mPublic::AnyEditorOpen());
    EXPECT_GE(ended, 1);
  }

  const QString output = mFolders::Join(mPlatform::Current().temporaryFolder, u"compiler.dat"_s);
};

TEST_F(QuitTest, NoLeavesEverythingAsItIs) {
  Type(Open(u"a.html"_s, "a"), u"x"_s);
  dialogs.answers = {Answer::No, Answer::No};
  EXPECT_FALSE(main->close());
  main->mnuFileQuit->trigger();
  EXPECT_TRUE(main->isVisible() && mPublic::AnyEditorOpen() && !mPublic::bAppClosing);
  EXPECT_EQ(ended, 0);
}

TEST_F(QuitTest, ThroughTheWindowEveryDocumentAsksAndTheCompilersOutputGoes) {
  QuitWithFour([this] { EXPECT_TRUE(main->close()); });
  EXPECT_FALSE(QFile::exists(output));
  main->close();
  EXPECT_EQ(dialogs.messages.size(), 5) << "a second close ends at once";
}

TEST_F(QuitTest, ThroughTheMenuEveryDocumentAsksAndNoFileIsDeleted) {
  QuitWithFour([this] { main->mnuFileQuit->trigger(); });
  EXPECT_TRUE(QFile::exists(output));
}

}  // namespace
