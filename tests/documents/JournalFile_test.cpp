#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "base/mFolders.h"
#include "documents/JournalFile.h"
#include "shared/Files.h"
#include "shared/KilledAt.h"
#include "shared/Limits.h"

namespace {

class JournalFileTest : public testing::Test {
 protected:
  void Put(JournalFile &file, const QString &text) const {
    file.Begin();
    file.Append(JournalRecords::OfCaption(QStringLiteral("a.html")));
    file.Append(JournalRecords::OfEdit({0, 0, text}));
    file.Commit();
  }

  // A journal of a process that has ended.
  void Leave(const QString &text) const {
    JournalFile file(path);
    Put(file, text);
  }

  QStringList Names() const {
    return QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  }

  // What the next process finds, one after the other.
  QStringList Texts() const {
    QStringList texts;
    for (const QString &name : JournalFile::In(path)) {
      if (const auto found = JournalFile::TakeOver(name)) texts << found->document.text;
    }
    return texts;
  }

  static int Mode(const QString &name) {
    struct stat entry {};
    EXPECT_EQ(stat(QFile::encodeName(name).constData(), &entry), 0);
    return int(entry.st_mode & 0777);
  }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("state/tagwright/0123"));
};

TEST_F(JournalFileTest, OnlyItsOwnerReadsItAndNoFolderIsMadeForNothing) {
  JournalFile file(path);
  file.Remove();
  EXPECT_FALSE(QDir(path).exists());
  Put(file, QStringLiteral("x"));
  EXPECT_EQ(Mode(path), 0700);
  EXPECT_EQ(Mode(path + QStringLiteral("/..")), 0700);
  ASSERT_EQ(Names().size(), 1);
  EXPECT_EQ(Mode(mFolders::Join(path, Names().first())), 0600);
  file.Remove();
  EXPECT_TRUE(Names().isEmpty());
}

TEST_F(JournalFileTest, ALivingProcessKeepsItsOwn) {
  JournalFile mine(path);
  Put(mine, QStringLiteral("mine"));
  Leave(QStringLiteral("left"));
  Leave(QStringLiteral("later"));
  mine.Begin();
  JournalFile::RemoveUnfinished(path);
  EXPECT_EQ(Texts(), (QStringList{QStringLiteral("left"), QStringLiteral("later")}));
  mine.Append(JournalRecords::OfCaption(QStringLiteral("b")));
  mine.Commit();
  EXPECT_FALSE(mine.Failed());
  EXPECT_EQ(Names().size(), 3);
}

TEST_F(JournalFileTest, WhatCannotBeReadIsSetAside) {
  Leave(QStringLiteral("torn"));
  const QString torn = JournalFile::In(path).value(0);
  const QByteArray bytes = FileBytes(torn) + "xyz";
  PutFile(torn, bytes);
  const QString foreign = mFolders::Join(path, QStringLiteral("z.journal"));
  PutFile(foreign, "foreign");
  // Neither files nor read: these would wait or never end.
  QDir(path).mkdir(QStringLiteral("folder.journal"));
  QFile::link(QStringLiteral("/dev/zero"), mFolders::Join(path, QStringLiteral("zero.journal")));
  const QString pipe = mFolders::Join(path, QStringLiteral("pipe.journal"));
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  const QString unfinished = mFolders::Join(path, QStringLiteral("old.journal.begun"));
  PutFile(unfinished, "unfinished");

  JournalFile::RemoveUnfinished(path);
  EXPECT_EQ(Texts(), QStringList{QStringLiteral("torn")});
  EXPECT_EQ(FileBytes(torn + QStringLiteral(".damaged")), bytes);
  EXPECT_EQ(FileBytes(foreign + QStringLiteral(".damaged")), "foreign");
  EXPECT_FALSE(QFile::exists(foreign));
  EXPECT_FALSE(QFile::exists(unfinished));
}

TEST_F(JournalFileTest, OnAFullDiskTheOldOneStays) {
  const QString large(40'000, u'y');
  std::optional<JournalFile> file(path);
  Put(*file, QStringLiteral("old"));
  {
    const FullDisk full(32'768);
    Put(*file, large);
    EXPECT_TRUE(file->Failed());
    EXPECT_EQ(Names().size(), 1);
  }
  Put(*file, QStringLiteral("new"));
  EXPECT_FALSE(file->Failed());
  {
    const FullDisk full(32'768);
    file->Append(JournalRecords::OfEdit({0, 0, large}));
    EXPECT_TRUE(file->Failed());
  }
  file->Append(JournalRecords::OfEdit({0, 0, QStringLiteral("behind a gap ")}));
  file.reset();
  EXPECT_EQ(Texts(), QStringList{QStringLiteral("new")});
}

TEST_F(JournalFileTest, WithoutAFolderNothingIsKeptAndNothingFails) {
  PutFile(folder.filePath(QStringLiteral("state")), "a file in the folder's place");
  JournalFile file(path);
  Put(file, QStringLiteral("x"));
  EXPECT_TRUE(file.Failed());
  EXPECT_TRUE(JournalFile::In(path).isEmpty());
  file.Remove();
}

TEST_F(JournalFileTest, KilledAtAnyMomentTheOldTextOrTheNewOneIsThere) {
  bool newSeen = false;
  int moments = 0;
  for (bool killed = true; killed; ++moments) {
    QDir(path).removeRecursively();
    Leave(QStringLiteral("old"));
    killed = KilledAt(moments, [this] {
      auto found = JournalFile::TakeOver(JournalFile::In(path).value(0));
      Put(*found->file, QStringLiteral("new"));
    });
    JournalFile::RemoveUnfinished(path);
    const QStringList texts = Texts();
    EXPECT_EQ(texts.size(), 1) << moments;
    newSeen = newSeen || texts.value(0) == QStringLiteral("new");
    EXPECT_EQ(texts.value(0), newSeen ? QStringLiteral("new") : QStringLiteral("old")) << moments;
    EXPECT_EQ(Names().size(), 1) << moments;
  }
  EXPECT_TRUE(newSeen);
  EXPECT_GE(moments, 5);
}

TEST(JournalFolder, LiesInTheStateFolderUnderTheProgramFoldersMark) {
  const QTemporaryDir one, other;
  const QByteArray before = qgetenv("XDG_STATE_HOME");
  qputenv("XDG_STATE_HOME", "/state");
  const QString folder = JournalFolder(one.path());
  EXPECT_EQ(folder.left(17), QStringLiteral("/state/tagwright/"));
  EXPECT_EQ(folder.size(), 17 + 16);
  EXPECT_EQ(JournalFolder(one.path() + QStringLiteral("/.")), folder);
  EXPECT_NE(JournalFolder(other.path()), folder);
  for (const char *unusable : {"", "relative"}) {
    qputenv("XDG_STATE_HOME", unusable);
    EXPECT_TRUE(JournalFolder(one.path())
                    .startsWith(QDir::homePath() + QStringLiteral("/.local/state/tagwright/")));
  }
  qputenv("XDG_STATE_HOME", before);
}

}  // namespace
