
#include <QDir>

#include "frame/InstanceLock.h"
#include "frame/frmStart.h"
#include "shared/FormsTest.h"

namespace {

// Starts as the process does, with a program folder that the test has prepared.
class StartTest : public testing::Test {
 protected:
  StartTest() {
    SetEndProgram([] {});
    SetCommandLine({});
  }
  ~StartTest() override { mForms::DestroyAll(); }

  void SetSplash(bool shown) {
    mPublic::ReadPreferences();
    mPublic::recPreferences.ShowStartWindow = shown;
    ASSERT_TRUE(mPublic::WritePreferences());
  }

  ScriptedDialogs &dialogs = ScriptedDialogs::Install();
};

const QString defect = QStringLiteral(
    "Tagwright - Critical Message|The application installation of tagwright is defect, please run "
    "the REPAIR-Function in Setup|0");

TEST_F(StartTest, TheSplashStandsUntilItsTimerOrAClick) {
  SetSplash(true);
  QPointer<frmStart> splash = Default<frmStart>();
  ASSERT_TRUE(splash->MayStart());
  EXPECT_TRUE(splash->isVisible());
  EXPECT_EQ(splash->size(), splash->imgfrmStart->size());
  EXPECT_EQ(splash->timTimer->interval(), 5000);
  EXPECT_EQ(mForms::Find(QStringLiteral("mdiMain")), nullptr);
  QTest::mouseClick(splash->lblStart, Qt::LeftButton);
  EXPECT_TRUE(splash->IsUnloaded());
  EXPECT_TRUE(Default<mdiMain>()->isVisible());
  EXPECT_TRUE(Default<mdiMain>()->timloadStencils->isActive());
}

TEST_F(StartTest, AnyBytesInThePreferencesStart) {
  QFile file(mFolders::InProgramFolder(QStringLiteral("preferences.dat")));
  for (const char byte : {'\xFF', '\x7F', '\0'}) {
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(3557, byte));
    file.close();
    auto *splash = Default<frmStart>();
    ASSERT_TRUE(splash->MayStart());
    if (!splash->IsUnloaded()) QMetaObject::invokeMethod(splash->timTimer, "timeout");
    auto *main = Default<mdiMain>();
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(mEditors::OpenWindow());
    mEditors::Active()->close();
    delete main;
  }
}

TEST_F(StartTest, ADefectInstallationIsTold) {
  const QString path = mFolders::InProgramFolder(QStringLiteral("sc.dat"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("x");
  file.close();
  dialogs.answers = {Dialogs::Answer::Ok};
  auto *splash = Default<frmStart>();
  EXPECT_FALSE(splash->MayStart());
  EXPECT_FALSE(splash->isVisible());
  EXPECT_EQ(dialogs.messages, QStringList{defect});
  EXPECT_EQ(mForms::Find(QStringLiteral("mdiMain")), nullptr);
}

TEST_F(StartTest, StripsAreDrawnAndMissingUntestedFilesDoNoHarm) {
  SetSplash(false);
  QFile::remove(mFolders::InProgramFolder(QStringLiteral("File0009.dat")));
  QFile::remove(mFolders::InProgramFolder(QStringLiteral("htLib0001.htf")));
  EXPECT_TRUE(Default<frmStart>()->IsUnloaded());
  auto *main = Default<mdiMain>();
  const auto blank = [](const ToolStrip *strip) {
    QImage empty(strip->Artwork().size(), strip->Artwork().format());
    empty.fill(Qt::transparent);
    return strip->Artwork() == empty;
  };
  EXPECT_TRUE(blank(main->picJava));
  for (const ToolStrip *strip : {main->picButtons, main->picLeft, main->picBottom, main->picRight,
                                 main->picHtmlTextOptions, main->picLeftArrow}) {
    EXPECT_FALSE(blank(strip)) << strip->objectName().toStdString();
  }
  EXPECT_EQ(main->cboFontsize->currentText(), QStringLiteral("12 pt"));
  EXPECT_EQ(main->windowTitle(),
            QStringLiteral("nimbara works tagwright - hypertext authoring bench  v1.100 "));
  EXPECT_EQ(main->trwStencils->Node(1)->text(0), QStringLiteral("Standard Stencils - html 4.01"));
}

TEST_F(StartTest, TheCommandLinesFileIsOpenedIfThereIsOne) {
  SetSplash(false);
  QTemporaryDir folder;
  QFile page(folder.filePath(QStringLiteral("a page.html")));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  page.write("<p>");
  page.close();
  SetCommandLine(QStringLiteral("\"%1\"").arg(page.fileName()));
  Default<frmStart>();
  EXPECT_FALSE(mPublic::AnyEditorOpen()) << "quotes are part of the name";
  delete Default<mdiMain>();

  SetCommandLine(QStringLiteral("  %1 ").arg(QDir().relativeFilePath(page.fileName())));
  Default<frmStart>();
  ASSERT_TRUE(mEditors::Active());
  EXPECT_EQ(mEditors::Active()->Caption(), page.fileName());
  mEditors::Active()->close();
}

TEST_F(StartTest, TheStencilTimerFiresOnceButNotIntoAnOpenMenu) {
  SetSplash(false);
  Default<frmStart>();
  auto *main = Default<mdiMain>();
  QTimer *timer = main->timloadStencils;
  EXPECT_EQ(timer->interval(), 4000);
  main->mnuFile->popup(QPoint(20, 20));
  ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
  EXPECT_TRUE(main->mnuFile->isVisible());
  EXPECT_TRUE(timer->isActive());
  main->mnuFile->close();
  ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
  EXPECT_FALSE(timer->isActive());
  EXPECT_EQ(mForms::Find(QStringLiteral("frmDatabaseIsLoading")), nullptr);
}

}  // namespace
