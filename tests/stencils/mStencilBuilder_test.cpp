#include "stencils/mStencilBuilder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "shared/KilledAt.h"
#include "shared/Limits.h"
#include "shared/Stencils.h"
#include "stencils/QuickBar.h"

namespace {

class mStencilBuilderTest : public testing::Test {
 protected:
  void Put(const char *stencils, const char *quickBar) {
    PutStencils(path, QString::fromLatin1(stencils).split(u' ', Qt::SkipEmptyParts));
    PutQuickBar(bar, QString::fromLatin1(quickBar).split(u' ', Qt::SkipEmptyParts));
  }
  void Delete(const QString &key) {
    mStencilBuilder::BlankSubtree(path, key);
    mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch);
  }
  QString Entries() { return QuickBar::Keys(bar).join(u' '); }

  QTemporaryDir folder;
  const QString path = folder.filePath(StencilFiles::SelfBuilt);
  const QString bar = folder.filePath(StencilFiles::QuickBar);
  const QString scratch = folder.filePath(StencilFiles::Scratch);
};

TEST_F(mStencilBuilderTest, ADeleteTakesTheSubtreeAndItsQuickBarEntries) {
  struct Case {
    const char *key, *stencils, *quickBar, *stencilsLeft, *quickBarLeft;
  };
  for (const auto &row : {
           Case{"aabb", "aaaa aabb aabbaa aacc aabbbb", "aabbaa aacc aa aaaa", "aaaa aacc",
                "aacc aaaa"},
           Case{"aa", "aaaa aabb", "aabb", "", ""},
           Case{"", "aaaa qq", "qq", "", ""},
           Case{"AABB", "aaaa aabb", "", "aaaa", ""},
           Case{"none", "aaaa b aabb aabb", "aabb aaaa", "aaaa aabb aabb", "aabb aabb aaaa"},
       }) {
    Put(row.stencils, row.quickBar);
    PutFile(scratch, "left behind by a stop" + QByteArray(9000, 'x'));
    Delete(QString::fromLatin1(row.key));
    EXPECT_EQ(KeysIn(path), QLatin1String(row.stencilsLeft)) << row.key;
    EXPECT_EQ(Entries(), QLatin1String(row.quickBarLeft)) << row.key;
    EXPECT_FALSE(QFile::exists(scratch));
  }
  EXPECT_EQ(StencilFiles::FindStencil(path, QStringLiteral("aaaa"))->HtmlSource.Trimmed(),
            QStringLiteral("<aaaa>"));
}

TEST_F(mStencilBuilderTest, WhatIsMissingStaysMissing) {
  Delete(StencilFiles::RootKey);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(mStencilBuilderTest, AStepThatFailsLeavesTheOldFileWhole) {
  Put("aaaa aabb aacc", "aabb gone");
  const QByteArray stencils = FileBytes(path);
  {
    const FullDisk disk(5000);
    mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch);
  }
  EXPECT_EQ(FileBytes(path), stencils);
  EXPECT_FALSE(QFile::exists(scratch));
  PutQuickBar(bar, {QStringLiteral("gone")});
  QFile::setPermissions(folder.path(),
                        QFile::ReadOwner | QFile::ReadOther | QFile::ExeOwner | QFile::ExeOther);
  {
    const WithoutSuperuser user;
    mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch);
  }
  EXPECT_EQ(FileBytes(path), stencils);
  EXPECT_EQ(Entries(), QStringLiteral("gone"));
}

TEST_F(mStencilBuilderTest, KilledAtAnyMomentNothingElseIsLost) {
  int moments = 0;
  for (bool killed = true; killed; ++moments) {
    ASSERT_LT(moments, 200);
    QFile::remove(scratch);
    Put("aaaa aabb aabbaa aacc", "aacc aabbaa aaaa");
    killed = KilledAt(moments, [this] { Delete(QStringLiteral("aabb")); });
    QStringList keys = KeysIn(path).split(u' ', Qt::SkipEmptyParts);
    keys.removeAll(QStringLiteral("aabb"));
    keys.removeAll(QStringLiteral("aabbaa"));
    EXPECT_EQ(keys, (QStringList{QStringLiteral("aaaa"), QStringLiteral("aacc")})) << moments;
    QStringList entries = QuickBar::Keys(bar);
    entries.removeAll(QStringLiteral("aabbaa"));
    EXPECT_EQ(entries, (QStringList{QStringLiteral("aacc"), QStringLiteral("aaaa")})) << moments;
    Delete(QStringLiteral("aabb"));
    EXPECT_EQ(KeysIn(path), QStringLiteral("aaaa aacc")) << "the next delete brings it to its end";
  }
  EXPECT_GT(moments, 10);
}

}  // namespace
