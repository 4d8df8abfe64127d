#include "base/mFolders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "base/DataFiles.h"
#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

/// An installation in a temporary folder, with no data beside its program.
class mFoldersTest : public testing::Test {
 protected:
  QString In(const char *path) const { return folder.filePath(QLatin1String(path)); }

  const QTemporaryDir folder;
  mFolders::ProgramFolderSources sources{
      {}, In("bin"), In("home/user"), In("bin/../share"), DataFileNames()};
};

TEST_F(mFoldersTest, TheProgramFolderIsTheFirstThatIsGiven) {
  ASSERT_TRUE(QDir().mkpath(In("bin/sc.dat")));  // not a file
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.userDataFolder);
  PutFile(In("bin/File0009.dat"), "");
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.executableFolder);
  sources.environmentFolder = u"some/../where/"_s;
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), QDir::currentPath() + u"/where"_s);
}

TEST_F(mFoldersTest, TheUserFolderIsFilledOnceAndWhole) {
  ASSERT_TRUE(QDir().mkpath(In("share/help")));
  PutFile(In("share/help/index.htm"), "help");
  PutFile(In("share/sc.dat"), "characters");
  EXPECT_FALSE(mFolders::FillUserDataFolder(sources)) << "no preferences to copy";
  EXPECT_TRUE(QDir(In("home")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));

  PutFile(In("share/preferences.dat"), "standard");
  ASSERT_TRUE(QFile::setPermissions(In("share/preferences.dat"), QFile::ReadOwner));
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  const QFileInfo preferences(In("home/user/preferences.dat"));
  EXPECT_TRUE(!preferences.isSymLink() && preferences.permission(QFile::WriteOwner));
  EXPECT_EQ(FileBytes(In("home/user/preferences.dat")), "standard");
  EXPECT_EQ(QFile::symLinkTarget(In("home/user/sc.dat")), In("share/sc.dat"));
  EXPECT_EQ(FileBytes(In("home/user/help/index.htm")), "help");

  PutFile(In("home/user/preferences.dat"), "mine");
  EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
  EXPECT_EQ(FileBytes(In("home/user/preferences.dat")), "mine");
}

TEST(mFolders, TheProcessTakesItsFolderFromTheEnvironment) {
  const QString given = qEnvironmentVariable("TAGWRIGHT_FOLDER");  // ends in a separator
  EXPECT_EQ(mFolders::InProgramFolder(u"sc.dat"_s), given + u"sc.dat"_s);
}
