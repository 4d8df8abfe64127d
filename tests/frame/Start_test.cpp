#include <QDir>

#include "base/DataFiles.h"
#include "frame/CommandLine.h"
#include "frame/frmStart.h"
#include "shared/FormsTest.h"

using Qt::StringLiterals::operator""_s;

namespace {

// Starts as the process does, with a program folder that the test has prepared.
struct StartTest : testing::Test {
  StartTest() {
    SetEndProgram([] {});
    mPublic::recPreferences = StandardPreferences();
    mPublic::recPreferences.ShowStartWindow = false;
    EXPECT_TRUE(mPublic::WritePreferences());
  }
  ~StartTest() override { mForms::DestroyAll(); }

  ScriptedDialogs &dialogs = ScriptedDialogs::Install();
};

TEST_F(StartTest, TheSplashStandsUntilItsTimerOrAClick) {
  mPublic::recPreferences.ShowStartWindow = true;
  EXPECT_TRUE(mPublic::WritePreferences());
  auto *splash = Default<frmStart>();
  EXPECT_TRUE(splash->MayStart() && splash->isVisible() && splash->timTimer->isActive());
  EXPECT_EQ(mForms::Find(u"mdiMain"_s), nullptr);
  QTest::mouseClick(splash->lblStart, Qt::LeftButton);
  EXPECT_TRUE(splash->IsUnloaded() && Default<mdiMain>()->isVisible());
}

TEST_F(StartTest, ADefectInstallationIsTold) {
  for (int row = 0; row < TestedDataFiles; ++row) {
    const QString path = mFolders::InProgramFolder(QLatin1String(DataFiles[size_t(row)].name));
    const QByteArray whole = FileBytes(path);
    for (const QByteArray &wrong : {whole.chopped(1), whole + 'x', QByteArray()}) {
      PutFile(path, wrong);
      EXPECT_TRUE(!wrong.isEmpty() || QFile::remove(path));
      dialogs.answers = {Dialogs::Answer::Ok};
      EXPECT_FALSE(Default<frmStart>()->MayStart()) << qPrintable(path) << ' ' << wrong.size();
      EXPECT_EQ(mForms::Find(u"mdiMain"_s), nullptr);
      mForms::DestroyAll();
    }
    PutFile(path, whole);
  }
  EXPECT_EQ(
      dialogs.messages,
      QStringList(3 * TestedDataFiles,
                  u"Tagwright - Critical Message|The application installation of tagwright is "
                  "defect, please run the REPAIR-Function in Setup|0"_s));
}

TEST_F(StartTest, StripsAreDrawnAndMissingUntestedFilesDoNoHarm) {
  for (const QString &name : {u"File0009.dat"_s, u"htLib0001.htf"_s}) {
    EXPECT_TRUE(QFile::remove(mFolders::InProgramFolder(name)));
  }
  Default<frmStart>();
  const QImage &drawn = Default<mdiMain>()->picRight->Artwork();
  QImage blank(drawn.size(), drawn.format());
  blank.fill(Qt::transparent);
  EXPECT_NE(drawn, blank);
}

TEST_F(StartTest, TheCommandLinesFileIsOpenedIfThereIsOne) {
  const QTemporaryDir folder;
  QDir::setCurrent(folder.path());
  PutFile(u"a page.html"_s, "<p>");
  const char *const words[] = {"tagwright", "a", "page.html"};
  QString opened;
  for (const QString &line :
       {u"\"a page.html\""_s, CommandLineText(1, words), CommandLineText(3, words)}) {
    SetCommandLine(line);
    Default<frmStart>();
    opened += u'|' + (mEditors::Active() ? mEditors::Active()->Caption() : QString());
    mForms::DestroyAll();
  }
  EXPECT_EQ(opened, u"|||"_s + folder.filePath(u"a page.html"_s)) << "quotes are part of the name";
}

TEST_F(StartTest, TheStencilTimerFiresOnceButNotIntoAnOpenMenu) {
  Default<frmStart>();
  auto *main = Default<mdiMain>();
  QTimer *timer = main->timloadStencils;
  main->mnuFile->popup(QPoint(20, 20));
  QMetaObject::invokeMethod(timer, "timeout");
  EXPECT_TRUE(main->mnuFile->isVisible() && timer->isActive());
  main->mnuFile->close();
  QMetaObject::invokeMethod(timer, "timeout");
  EXPECT_FALSE(timer->isActive());
  EXPECT_EQ(mForms::Find(u"frmDatabaseIsLoading"_s), nullptr);
}

}  // namespace
