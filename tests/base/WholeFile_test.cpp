#include "base/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "shared/Files.h"
#include "shared/Limits.h"

struct WholeFileTest : testing::Test {
  void SetUp() override { Mode("", 0777); }  // an unprivileged user must get in
  QString At(const QByteArray &name) const { return folder.filePath(QLatin1String(name)); }
  void Mode(const char *name, mode_t mode) { ASSERT_EQ(chmod(qPrintable(At(name)), mode), 0); }
  /// Owner's, group's and others' permissions as hexadecimal digits.
  int ModeOf(const char *name) const { return int(QFile::permissions(At(name))) & 0x7077; }
  QByteArray Write(const QByteArray &name, QByteArrayView bytes) const {
    return WriteWholeFile(At(name), bytes) ? FileBytes(At(name)) : "<refused>";
  }
  qsizetype Entries() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System).size() - 2;
  }

  const QTemporaryDir folder;
};

TEST_F(WholeFileTest, MakesAndReplacesFilesWholeOrNotAtAll) {
  const mode_t mask = umask(027);
  EXPECT_TRUE(Write("file", "a longer text") == "a longer text" && ModeOf("file") == 0x6040);
  umask(mask);
  Mode("file", 0604);
  EXPECT_TRUE(Write("file", "short") == "short" && ModeOf("file") == 0x6004);
  const QByteArray longName(255, 'n');  // no room for the name of a companion
  EXPECT_EQ(Write(longName, "first") + Write(longName, "second"), "firstsecond");
  const FullDisk disk(10'000);
  for (const int length : {10'001, 100'000}) {  // below and above what is buffered
    EXPECT_EQ(Write("file", QByteArray(length, 'x')), "<refused>");
  }
  EXPECT_TRUE(FileBytes(At("file")) == "short" && Entries() == 2);
}

TEST_F(WholeFileTest, LinksStayAndTheirTargetsAreWrittenButOnlyFiles) {
  const char *links[][2] = {{"target", "link"}, {"link", "second"}, {"new", "dangling"},
                            {"b", "a"},         {"a", "b"},         {"pipe", "p"}};
  PutFile(At("target"), "old");
  ASSERT_EQ(mkfifo(qPrintable(At("pipe")), 0666), 0);
  for (const auto &[to, from] : links) ASSERT_EQ(symlink(to, qPrintable(At(from))), 0);
  EXPECT_EQ(Write("second", "1") + Write("dangling", "2"), "12");
  EXPECT_EQ(FileBytes(At("target")) + FileBytes(At("new")), "12");
  for (const char *name : {"a", "p", "pipe", ".", "gone/file", "file/"}) {
    EXPECT_EQ(Write(name, "x"), "<refused>") << name;
  }
  for (const auto &[to, from] : links) EXPECT_TRUE(QFileInfo(At(from)).isSymLink()) << from;
  EXPECT_TRUE(!WriteWholeFile({}, "x") && Entries() == 9);
}

TEST_F(WholeFileTest, PermissionsDecideWhereItIsWritten) {
  ASSERT_TRUE(QDir().mkdir(At("closed")));
  PutFile(At("closed/file"), "old");
  PutFile(At("readonly"), "old");
  Mode("closed/file", 0666);
  Mode("closed", 0555);
  Mode("readonly", 0444);
  {
    const WithoutSuperuser user;
    EXPECT_EQ(Write("closed/file", "in place"), "in place");
    EXPECT_EQ(Write("readonly", "") + Write("closed/other", ""), "<refused><refused>");
    const FullDisk disk(10'000);
    EXPECT_EQ(Write("closed/file", QByteArray(12'000, 'x')), "<refused>");
  }
  EXPECT_EQ(FileBytes(At("readonly")), "old");
  Mode("closed", 0755);  // so that the folder can be taken away again
}

TEST_F(WholeFileTest, OwnerAndGroupStay) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give files away";
  PutFile(At("file"), "old");
  Mode("file", 0666);
  ASSERT_EQ(chown(qPrintable(At("file")), 1234, 2345), 0);
  EXPECT_EQ(Write("file", "by the superuser"), "by the superuser");
  {
    const WithoutSuperuser user;
    EXPECT_EQ(Write("file", "by another"), "by another");
  }
  const QFileInfo file(At("file"));
  EXPECT_TRUE(file.ownerId() == 1234 && file.groupId() == 2345 && ModeOf("file") == 0x6066);
}
