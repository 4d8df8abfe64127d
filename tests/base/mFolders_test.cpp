#include "base/mFolders.h"

#include "base/DataFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "shared/Files.h"

namespace {

/// An installation in a temporary folder, with no data beside its program.
class mFoldersTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(root.mkpath(QStringLiteral("bin")));
    ASSERT_TRUE(root.mkpath(QStringLiteral("share/tagwright/help")));
    PutFile(InRoot("share/tagwright/help/index.htm"), "help");
    PutFile(InRoot("share/tagwright/sc.dat"), "characters");
  }
  QString InRoot(const char *path) const { return root.filePath(QLatin1String(path)); }

  const QTemporaryDir folder;
  const QDir root{folder.path()};
  mFolders::ProgramFolderSources sources{.environmentFolder = {},
                                         .executableFolder = InRoot("bin"),
                                         .userDataFolder = InRoot("home/.local/tagwright"),
                                         .sharedDataFolder = InRoot("bin/../share/tagwright"),
                                         .dataFiles = DataFileNames()};
};

TEST_F(mFoldersTest, TheProgramFolderIsTheFirstThatIsGiven) {
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.userDataFolder);
  ASSERT_TRUE(root.mkpath(QStringLiteral("bin/sc.dat")));
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.userDataFolder);  // not a file
  PutFile(InRoot("bin/File0009.dat"), "");
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.executableFolder);
  sources.environmentFolder = QStringLiteral("some/../where/");
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), QDir::currentPath() + QStringLiteral("/where"));
}

TEST_F(mFoldersTest, TheUserFolderIsFilledOnce) {
  const QDir user(sources.userDataFolder);
  const QString preferences = user.filePath(QStringLiteral("preferences.dat"));
  PutFile(InRoot("share/tagwright/preferences.dat"), "standard");
  ASSERT_TRUE(QFile::setPermissions(InRoot("share/tagwright/preferences.dat"), QFile::ReadOwner));
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  EXPECT_FALSE(QFileInfo(preferences).isSymLink());
  EXPECT_EQ(FileBytes(preferences), "standard");
  EXPECT_TRUE(QFileInfo(preferences).permission(QFile::WriteOwner));
  EXPECT_EQ(QFile::symLinkTarget(user.filePath(QStringLiteral("sc.dat"))),
            InRoot("share/tagwright/sc.dat"));
  EXPECT_EQ(FileBytes(user.filePath(QStringLiteral("help/index.htm"))), "help");

  ASSERT_TRUE(QFile::remove(preferences));
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  EXPECT_FALSE(QFileInfo::exists(preferences));
}

TEST_F(mFoldersTest, AFillingThatFailsLeavesNothing) {
  EXPECT_FALSE(mFolders::FillUserDataFolder(sources));  // no preferences to copy
  EXPECT_TRUE(
      QDir(InRoot("home/.local")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
  EXPECT_EQ(FileBytes(InRoot("share/tagwright/help/index.htm")), "help");
  PutFile(sources.userDataFolder, "in the way");
  EXPECT_FALSE(mFolders::FillUserDataFolder(sources));
}

TEST(mFolders, TheProcessTakesItsFolderFromTheEnvironment) {
  const QString given = qEnvironmentVariable("TAGWRIGHT_FOLDER");  // ends in a separator
  EXPECT_EQ(mFolders::InProgramFolder(QStringLiteral("sc.dat")), given + QStringLiteral("sc.dat"));
  EXPECT_EQ(mFolders::Join(given, QStringLiteral("a")), given + QStringLiteral("/a"));
}

}  // namespace
