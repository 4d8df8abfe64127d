#include <QDir>

#include "base/mPlatform.h"
#include "shared/FormsTest.h"

namespace {

using Answer = Dialogs::Answer;

class QuitTest : public FormsTest {
 protected:
  // Four changed documents, whose questions are answered Yes, No, Cancel and (unwritable) Yes.
  void OpenFour() {
    for (const char *name : {"a.html", "b.html", "c.html", "d.html"}) {
      Type(Open(QLatin1String(name), "old"), QStringLiteral("new "));
    }
    mEditors::aEditorWindow[4]->SetCaption(Path(QStringLiteral("gone/d.html")));
    dialogs.answers = {Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel, Answer::Yes};
  }

  void ExpectFourAsked() {
    EXPECT_EQ(dialogs.messages.size(), 5);
    EXPECT_EQ(dialogs.messages.first(),
              QStringLiteral("nimbara works tagwright - v1.100|Do you want to exit?|1"));
    EXPECT_EQ(Read(QStringLiteral("a.html")), "new old\r\n");
    for (const char *name : {"b.html", "c.html", "d.html"}) {
      EXPECT_EQ(Read(QLatin1String(name)), "old");
    }
    EXPECT_FALSE(mPublic::AnyEditorOpen());
    EXPECT_TRUE(mPublic::bAppClosing);
    EXPECT_GE(ended, 1);
  }

  QString CompilerOutput() {
    const QString temporary = mPlatform::Current().temporaryFolder;
    QDir().mkpath(temporary);
    QFile file(mFolders::Join(temporary, QStringLiteral("compiler.dat")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }
};

TEST_F(QuitTest, NoLeavesEverythingAsItIs) {
  Type(Open(QStringLiteral("a.html"), "a"), QStringLiteral("x"));
  dialogs.answers = {Answer::No, Answer::No};
  EXPECT_FALSE(main->close());
  main->mnuFileQuit->trigger();
  EXPECT_TRUE(main->isVisible());
  EXPECT_TRUE(mPublic::AnyEditorOpen());
  EXPECT_FALSE(mPublic::bAppClosing);
  EXPECT_EQ(ended, 0);
}

TEST_F(QuitTest, ThroughTheWindowEveryDocumentAsksAndTheCompilersOutputGoes) {
  const QString output = CompilerOutput();
  FileCommands::NewFile();
  OpenFour();
  EXPECT_TRUE(main->close());
  ExpectFourAsked();
  EXPECT_FALSE(QFile::exists(output));
}

TEST_F(QuitTest, ThroughTheMenuEveryDocumentAsksAndNoFileIsDeleted) {
  const QString output = CompilerOutput();
  OpenFour();
  main->mnuFileQuit->trigger();
  ExpectFourAsked();
  EXPECT_TRUE(QFile::exists(output));
}

TEST_F(QuitTest, ASecondCloseEndsAtOnce) {
  Type(Open(QStringLiteral("a.html"), "a"), QStringLiteral("x"));
  mPublic::bAppClosing = true;
  main->close();
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_GE(ended, 1);
}

}  // namespace
