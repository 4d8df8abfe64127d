#include "base/mFolders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "base/DataFiles.h"
#include "shared/Files.h"

/// An installation in a temporary folder, with no data beside its program.
struct mFoldersTest : testing::Test {
  QString In(const char *path) const { return folder.filePath(path); }

  const QTemporaryDir folder;
  mFolders::ProgramFolderSources sources{
      {}, In("bin"), In("home/user"), In("bin/../share"), DataFileNames()};
};

TEST_F(mFoldersTest, TheProgramFolderIsTheFirstThatIsGiven) {
  ASSERT_TRUE(QDir().mkpath(In("bin/sc.dat")));  // not a file
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.userDataFolder);
  PutFile(In("bin/File0009.dat"), "");
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.executableFolder);
  sources.environmentFolder = "some/../where/";
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), QDir::currentPath() + "/where");
}

TEST_F(mFoldersTest, TheUserFolderIsFilledOnceAndWhole) {
  ASSERT_TRUE(QDir().mkpath(In("share/help")));
  EXPECT_FALSE(mFolders::FillUserDataFolder(sources)) << "no preferences to copy";
  EXPECT_TRUE(QDir(In("home")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));

  PutFile(In("share/preferences.dat"), "standard");
  ASSERT_TRUE(QFile::setPermissions(In("share/preferences.dat"), QFile::ReadOwner));
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  const QString preferences = In("home/user/preferences.dat");
  EXPECT_EQ(FileBytes(preferences), "standard");
  EXPECT_TRUE(QFileInfo(preferences).permission(QFile::WriteOwner));
  EXPECT_EQ(QFile::symLinkTarget(In("home/user/help")), In("share/help"));
  PutFile(preferences, "mine");
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  EXPECT_EQ(FileBytes(preferences), "mine");
}

TEST_F(mFoldersTest, TheFirstNineDataFilesAreTestedByLength) {
  for (int row = 0; row < TestedDataFiles; ++row) {
    const QString name = DataFiles[row].name;
    EXPECT_EQ(FirstDefectDataFile(folder.path()), name) << "missing";
    PutFile(folder.filePath(name), QByteArray(DataFiles[row].bytes + 1, 'x'));
    EXPECT_EQ(FirstDefectDataFile(folder.path()), name) << "too long";
    PutFile(folder.filePath(name), QByteArray(DataFiles[row].bytes, 'x'));
  }
  EXPECT_EQ(FirstDefectDataFile(folder.path()), std::nullopt) << "rows 9 and 10 may be missing";
}
