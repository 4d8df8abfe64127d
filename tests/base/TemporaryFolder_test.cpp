#include "base/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include "shared/Files.h"

using State = TemporaryFolder::State;

TEST(TemporaryFolder, IsMadeForThisUserAlone) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("not yet/there"));
  EXPECT_EQ(TemporaryFolder::StateOf(path), State::Missing);
  EXPECT_TRUE(TemporaryFolder::Make(path));
  EXPECT_EQ(QFileInfo(path).permissions() & QFile::Permissions(0x0077), QFile::Permissions());
  EXPECT_EQ(TemporaryFolder::StateOf(path), State::Usable);
  EXPECT_FALSE(TemporaryFolder::Make(path)) << "somebody else may have made it";
}

TEST(TemporaryFolder, WhatOthersMayHavePutThereIsNotUsed) {
  const QTemporaryDir folder;
  const QString link = folder.filePath(QStringLiteral("link"));
  const QString dangling = folder.filePath(QStringLiteral("dangling"));
  const QString file = folder.filePath(QStringLiteral("file"));
  PutFile(file, "");
  ASSERT_TRUE(QFile::link(folder.path(), link));
  ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone")), dangling));
  for (const QString &path : {link, link + u'/', dangling, file}) {
    EXPECT_EQ(TemporaryFolder::StateOf(path), State::Foreign) << qPrintable(path);
    EXPECT_FALSE(TemporaryFolder::Make(path)) << qPrintable(path);
  }
  if (geteuid() != 0) return;  // only the superuser can give a folder away
  ASSERT_EQ(chown(QFile::encodeName(folder.path()).constData(), 1, 1), 0);
  EXPECT_EQ(TemporaryFolder::StateOf(folder.path()), State::Foreign);
}
