#include "base/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "shared/Files.h"
#include "shared/Limits.h"

class WholeFileTest : public testing::Test {
 protected:
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

TEST_F(WholeFileTest, MakesAndReplacesFiles) {
  const mode_t mask = umask(027);
  EXPECT_EQ(Write("file", "a longer text"), "a longer text");
  umask(mask);
  EXPECT_EQ(ModeOf("file"), 0x6040);
  Mode("file", 0604);
  EXPECT_TRUE(Write("file", "short") == "short" && ModeOf("file") == 0x6004);
  const QByteArray longName(255, 'n');  // no room for the name of a companion
  EXPECT_EQ(Write(longName, "first") + Write(longName, "second"), "firstsecond");
  EXPECT_EQ(Entries(), 2);
}

TEST_F(WholeFileTest, LinksStayAndTheirTargetsAreWritten) {
  const char *links[][2] = {
      {"target", "link"}, {"link", "second"}, {"new", "dangling"}, {"b", "a"}, {"a", "b"}};
  PutFile(At("target"), "old");
  for (const auto &[to, from] : links) ASSERT_EQ(symlink(to, qPrintable(At(from))), 0);
  EXPECT_EQ(Write("second", "1") + Write("dangling", "2") + Write("a", "3"), "12<refused>");
  EXPECT_EQ(FileBytes(At("target")) + FileBytes(At("new")), "12");
  for (const auto &[to, from] : links) EXPECT_TRUE(QFileInfo(At(from)).isSymLink()) << from;
}

TEST_F(WholeFileTest, RefusesWhatIsNoFile) {
  ASSERT_EQ(mkfifo(qPrintable(At("pipe")), 0666), 0);
  ASSERT_EQ(symlink("pipe", qPrintable(At("link"))), 0);
  for (const char *name : {"", ".", "gone/file", "file/", "pipe", "link"}) {
    EXPECT_EQ(Write(name, "x"), "<refused>") << name;
  }
  EXPECT_TRUE(!WriteWholeFile({}, "x") && Entries() == 2);
}

TEST_F(WholeFileTest, PermissionsDecideWhereItIsWritten) {
  ASSERT_TRUE(QDir().mkdir(At("closed")) && QDir().mkdir(At("sticky")));
  for (const char *name : {"closed/file", "sticky/file", "readonly"}) PutFile(At(name), "old");
  const std::pair<const char *, mode_t> modes[] = {{"closed/file", 0666},
                                                   {"closed", 0555},
                                                   {"sticky/file", 0666},
                                                   {"sticky", 01777},
                                                   {"readonly", 0444}};
  for (const auto &[name, mode] : modes) Mode(name, mode);
  {
    const WithoutSuperuser user;
    EXPECT_EQ(Write("closed/file", "in place") + Write("sticky/file", "too"), "in placetoo");
    EXPECT_EQ(Write("readonly", "") + Write("closed/other", ""), "<refused><refused>");
    const FullDisk disk(10'000);
    EXPECT_EQ(Write("closed/file", QByteArray(12'000, 'x')), "<refused>");
  }
  EXPECT_EQ(FileBytes(At("readonly")), "old");
  Mode("closed", 0755);  // so that the folder can be taken away again
}

TEST_F(WholeFileTest, OwnerAndGroupStay) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give files away";
  const auto expectOwners = [&](uid_t owner, gid_t group) {
    const QFileInfo file(At("file"));
    EXPECT_TRUE(file.ownerId() == owner && file.groupId() == group && ModeOf("file") == 0x6066);
  };
  for (const gid_t group : {gid_t(2345), getegid()}) {
    PutFile(At("file"), "old");
    Mode("file", 0666);
    ASSERT_EQ(chown(qPrintable(At("file")), 1234, group), 0);
    EXPECT_EQ(Write("file", "by the superuser"), "by the superuser");
    expectOwners(1234, group);
    const WithoutSuperuser user;  // a member of the second group, not of the first
    EXPECT_EQ(Write("file", "by another"), "by another");
    expectOwners(group == getegid() ? geteuid() : 1234, group);
  }
}

TEST_F(WholeFileTest, AFullDiskLeavesTheOldFile) {
  PutFile(At("file"), "old");
  const FullDisk disk(10'000);
  for (const int length : {10'001, 100'000}) {  // below and above what is buffered
    const QByteArray bytes(length, 'x');
    EXPECT_EQ(Write("file", bytes) + Write("other", bytes), "<refused><refused>");
  }
  EXPECT_TRUE(WriteWholeFile(At("fits"), QByteArray(10'000, 'x')));
  EXPECT_TRUE(FileBytes(At("file")) == "old" && Entries() == 2);
}
