#include "base/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>

TEST(TemporaryFolder, IsMadeForThisUserAloneAndOneOfOthersIsNotUsed) {
  using State = TemporaryFolder::State;
  const QTemporaryDir folder;
  const QString made = folder.filePath("not yet/there"), link = folder.filePath("link");
  EXPECT_EQ(TemporaryFolder::Look(made), State::Missing);
  EXPECT_TRUE(TemporaryFolder::Make(made) && TemporaryFolder::Make(made)) << "then it is ours";
  EXPECT_EQ(QFileInfo(made).permissions() & QFile::Permissions(0x0077), QFile::Permissions());
  EXPECT_EQ(TemporaryFolder::Look(made), State::Usable);
  for (const QString &target : {made, folder.filePath("gone")}) {
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_EQ(TemporaryFolder::Look(link), State::Foreign);
    EXPECT_FALSE(TemporaryFolder::Make(link + '/') || !QFile::remove(link));
  }
  if (geteuid() != 0) return;  // only the superuser can give a folder away
  ASSERT_EQ(chown(qPrintable(made), 1, 1), 0);
  EXPECT_EQ(TemporaryFolder::Look(made), State::Foreign);
}
