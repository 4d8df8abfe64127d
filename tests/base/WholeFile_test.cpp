#include "base/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "shared/Files.h"
#include "shared/Limits.h"

namespace {

class WholeFileTest : public testing::Test {
 protected:
  void SetUp() override { Mode(folder.path(), 0777); }  // an unprivileged user must get in
  QString At(const char *name) const { return folder.filePath(QLatin1String(name)); }
  static void Mode(const QString &path, mode_t mode) {
    ASSERT_EQ(chmod(qPrintable(path), mode), 0) << qPrintable(path);
  }
  static mode_t ModeOf(const QString &path) {
    struct stat info {};
    EXPECT_EQ(stat(qPrintable(path), &info), 0);
    return info.st_mode & 07777;
  }
  QStringList Names() const {
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

  const QTemporaryDir folder;
};

TEST_F(WholeFileTest, MakesAndReplacesFiles) {
  const mode_t mask = umask(027);
  EXPECT_TRUE(WriteWholeFile(At("file"), "a longer text"));
  umask(mask);
  EXPECT_EQ(ModeOf(At("file")), 0640u);
  Mode(At("file"), 0604);
  EXPECT_TRUE(WriteWholeFile(At("file"), "short"));
  EXPECT_EQ(FileBytes(At("file")), "short");
  EXPECT_EQ(ModeOf(At("file")), 0604u);
  EXPECT_TRUE(WriteWholeFile(At("file"), {}));
  EXPECT_EQ(FileBytes(At("file")), "");
  EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
}

TEST_F(WholeFileTest, LinksStayAndTheirTargetsAreWritten) {
  PutFile(At("target"), "old");
  const char *links[][2] = {
      {"target", "link"}, {"link", "second"}, {"new", "dangling"}, {"b", "a"}, {"a", "b"}};
  for (const auto &[to, from] : links) ASSERT_EQ(symlink(to, qPrintable(At(from))), 0);
  EXPECT_TRUE(WriteWholeFile(At("link"), "1"));
  EXPECT_EQ(FileBytes(At("target")), "1");
  EXPECT_TRUE(WriteWholeFile(At("second"), "2"));
  EXPECT_EQ(FileBytes(At("target")), "2");
  EXPECT_TRUE(WriteWholeFile(At("dangling"), "3"));
  EXPECT_EQ(FileBytes(At("new")), "3");
  EXPECT_FALSE(WriteWholeFile(At("a"), "4"));
  for (const auto &[to, from] : links) EXPECT_TRUE(QFileInfo(At(from)).isSymLink()) << from;
}

TEST_F(WholeFileTest, RefusesWhatIsNoFile) {
  ASSERT_EQ(mkfifo(qPrintable(At("pipe")), 0666), 0);
  ASSERT_EQ(symlink("pipe", qPrintable(At("link"))), 0);
  for (const char *name : {"", ".", "gone/file", "file/", "pipe", "link"}) {
    EXPECT_FALSE(WriteWholeFile(At(name), "x")) << name;
  }
  EXPECT_FALSE(WriteWholeFile({}, "x"));
  EXPECT_EQ(Names(), QStringList({QStringLiteral("link"), QStringLiteral("pipe")}));
  EXPECT_TRUE(QFileInfo(At("pipe")).exists() && !QFileInfo(At("pipe")).isFile());
}

TEST_F(WholeFileTest, PermissionsDecideWhereItIsWritten) {
  for (const char *name : {"closed", "sticky"}) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QLatin1String(name)));
    PutFile(At(name) + QStringLiteral("/file"), "old");
    Mode(At(name) + QStringLiteral("/file"), 0666);
  }
  PutFile(At("readonly"), "old");
  Mode(At("readonly"), 0444);
  Mode(At("closed"), 0555);
  Mode(At("sticky"), 01777);
  {
    const WithoutSuperuser user;
    EXPECT_FALSE(WriteWholeFile(At("readonly"), "new"));
    EXPECT_TRUE(WriteWholeFile(At("closed/file"), "new"));
    EXPECT_FALSE(WriteWholeFile(At("closed/other"), "new"));
    EXPECT_TRUE(WriteWholeFile(At("sticky/file"), "new"));
    const FullDisk disk(10'000);
    EXPECT_FALSE(WriteWholeFile(At("closed/file"), QByteArray(12'000, 'x')));
  }
  EXPECT_EQ(FileBytes(At("readonly")), "old");
  EXPECT_EQ(FileBytes(At("sticky/file")), "new");
  Mode(At("closed"), 0755);  // so that the folder can be taken away again
}

TEST_F(WholeFileTest, OwnerAndGroupStay) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give files away";
  PutFile(At("file"), "old");
  ASSERT_EQ(chown(qPrintable(At("file")), 1234, 2345), 0);
  Mode(At("file"), 0666);
  {
    const WithoutSuperuser user;  // no member of that group: only in place can it stay
    EXPECT_TRUE(WriteWholeFile(At("file"), "by another"));
  }
  EXPECT_TRUE(WriteWholeFile(At("file"), "by the superuser"));
  EXPECT_EQ(QFileInfo(At("file")).ownerId(), 1234u);
  EXPECT_EQ(QFileInfo(At("file")).groupId(), 2345u);
}

TEST_F(WholeFileTest, AFullDiskLeavesTheOldFile) {
  PutFile(At("file"), "old");
  {
    const FullDisk disk(10'000);
    for (const int length : {10'001, 100'000}) {  // below and above what is buffered
      EXPECT_FALSE(WriteWholeFile(At("file"), QByteArray(length, 'x')));
      EXPECT_FALSE(WriteWholeFile(At("other"), QByteArray(length, 'x')));
    }
    EXPECT_TRUE(WriteWholeFile(At("fits"), QByteArray(10'000, 'x')));
  }
  EXPECT_EQ(FileBytes(At("file")), "old");
  EXPECT_EQ(Names(), QStringList({QStringLiteral("file"), QStringLiteral("fits")}));
}

}  // namespace
