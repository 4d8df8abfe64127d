#include "documents/JournalFile.h"

#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "shared/Files.h"
#include "shared/KilledAt.h"

using JournalRecords::OfCaption, JournalRecords::OfEdit;

struct JournalFileTest : testing::Test {
  static void Put(JournalFile &file, const QString &text) {
    file.Begin();
    file.Append(OfCaption("a.html") + OfEdit({0, 0, text}));
    file.Commit();
  }

  // What the next process finds.
  QString Texts() const {
    QStringList texts;
    for (const QString &name : JournalFile::In(path)) {
      if (const auto found = JournalFile::TakeOver(name)) texts << found->document.text;
    }
    return texts.join('|');
  }

  qsizetype Entries() const { return QDir(path).entryList().size() - 2; }

  const QTemporaryDir folder;
  const QString path = folder.filePath("state/tagwright/0123");
  std::optional<JournalFile> file{path};  // none: its process has ended
};

TEST_F(JournalFileTest, OnlyItsOwnerReadsItAndNoFolderIsMadeForNothing) {
  file->Remove();
  EXPECT_FALSE(QDir(path).exists());
  Put(*file, "x");
  for (const QString &entry : {path + "/..", path, JournalFile::In(path).value(0)}) {
    EXPECT_EQ(QFile::permissions(entry) & QFile::Permissions(0x0077), QFile::Permissions());
  }
}

TEST_F(JournalFileTest, ALivingProcessKeepsItsOwn) {
  Put(*file, "mine");
  for (const char *text : {"left", "later"}) Put(*std::make_unique<JournalFile>(path), text);
  file->Begin();
  JournalFile::RemoveUnfinished(path);
  EXPECT_EQ(Texts(), "left|later");
  file->Append(OfCaption("b"));
  file->Commit();
  EXPECT_TRUE(!file->Failed() && Entries() == 3);
}

TEST_F(JournalFileTest, WhatCannotBeReadIsSetAside) {
  Put(*file, "torn");
  file.reset();
  const QString torn = JournalFile::In(path).value(0), foreign = path + "/z.journal";
  const QByteArray bytes = FileBytes(torn) + "xyz";
  PutFile(torn, bytes);
  PutFile(foreign, "foreign");
  // Neither files nor read: these would wait or never end.
  ASSERT_TRUE(QFile::link("/dev/zero", path + "/zero.journal"));
  ASSERT_EQ(mkfifo(qPrintable(path + "/pipe.journal"), 0600), 0);
  EXPECT_EQ(Texts(), "torn");
  EXPECT_EQ(FileBytes(torn + ".damaged"), bytes);
  EXPECT_EQ(FileBytes(foreign + ".damaged"), "foreign");
  EXPECT_FALSE(QFile::exists(foreign));
}

TEST_F(JournalFileTest, WithoutAFolderNothingIsKeptAndNothingFails) {
  PutFile(folder.filePath("state"), "a file in the folder's place");
  Put(*file, "x");
  EXPECT_TRUE(file->Failed() && JournalFile::In(path).isEmpty());
}

TEST_F(JournalFileTest, KilledAtAnyMomentTheOldTextOrTheNewOneIsThere) {
  QString text = "old";
  int moments = 0;
  for (bool killed = true; killed; ++moments) {
    QDir(path).removeRecursively();
    Put(file.emplace(path), "old");
    file.reset();
    killed = KilledAt(moments, [this] {
      auto found = JournalFile::TakeOver(JournalFile::In(path).value(0));
      Put(*found->file, "new");
    });
    JournalFile::RemoveUnfinished(path);
    if (Texts() == "new") text = "new";
    EXPECT_TRUE(Texts() == text && Entries() == 1) << moments;
  }
  EXPECT_TRUE(text == "new" && moments >= 5);
}
