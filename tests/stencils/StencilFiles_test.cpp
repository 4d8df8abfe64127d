#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shared/KilledAt.h"
#include "shared/Limits.h"
#include "shared/Stencils.h"
#include "stencils/QuickBar.h"
#include "stencils/mStencilBuilder.h"

using Qt::StringLiterals::operator""_s;

class StencilFilesTest : public testing::Test {
 protected:
  void Put(const char *stencils, const char *quickBar) {
    PutStencils(path, QString::fromLatin1(stencils).split(u' '));
    PutQuickBar(bar, QString::fromLatin1(quickBar).split(u' '));
  }
  void Delete(const QString &key) {
    mStencilBuilder::BlankSubtree(path, key);
    mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch);
  }
  // Of the stencils and of the quick bar.
  QString Keys() { return KeysIn(path) + u'|' + QuickBar::Keys(bar).join(u' '); }

  QTemporaryDir folder;
  const QString path = folder.filePath(StencilFiles::SelfBuilt);
  const QString bar = folder.filePath(StencilFiles::QuickBar);
  const QString scratch = folder.filePath(StencilFiles::Scratch);
};

TEST_F(StencilFilesTest, TheLowestFreeLetterMakesTheNextKey) {
  QString children;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    children += u" aa"_s + QString(2, QLatin1Char(letter));
  }
  const QString cases[][3] = {{u""_s, u"aa"_s, u"aaaa"_s},
                              {u"aaaa aacc aaaaaa"_s, u"aa"_s, u"aabb"_s},
                              {u"AAAA aaaab aab aaBB aaba"_s, u"aa"_s, u"aaaa"_s},
                              {u"aaaa aaaaaa aaaabb"_s, u"aaaa"_s, u"aaaacc"_s},
                              {children, u"aa"_s, StencilFiles::NoKey},
                              {QString(children).remove(u"aazz"_s), u"aa"_s, u"aazz"_s}};
  for (const auto &[keys, parent, next] : cases) {
    PutStencils(path, keys.split(u' '));
    EXPECT_EQ(StencilFiles::NextFreeStencilKey(path, parent), next);
  }
}

TEST_F(StencilFilesTest, ADeleteTakesTheSubtreeAndItsQuickBarEntries) {
  const std::tuple<const char16_t *, const char *, const char *, const char16_t *> cases[] = {
      {u"aabb", "aaaa aabb aabbaa aacc aabbbb", "aabbaa aacc aa aaaa", u"aaaa aacc|aacc aaaa"},
      {u"", "aaaa qq", "qq", u"|"},
      {u"AABB", "aaaa aabb", "aaaa", u"aaaa|aaaa"},
      {u"none", "aaaa b aabb aabb", "aabb aaaa", u"aaaa aabb aabb|aabb aabb aaaa"}};
  for (const auto &[key, stencils, quickBar, left] : cases) {
    Put(stencils, quickBar);
    PutFile(scratch, "left behind by a stop" + QByteArray(9000, 'x'));
    Delete(QString::fromUtf16(key));
    EXPECT_EQ(Keys(), left);
    EXPECT_FALSE(QFile::exists(scratch));
  }
  EXPECT_EQ(FileBytes(path).left(2650), Bytes(Stencil(u"aaaa"_s, u"Haaaa"_s, u"<aaaa>"_s)));
}

TEST_F(StencilFilesTest, ARewriteThatFailsLeavesTheOldFileWhole) {
  Put("aaaa aabb aacc", "aabb gone");
  const QByteArray stencils = FileBytes(path);
  {
    const FullDisk disk(5000);
    mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch);
  }
  EXPECT_EQ(FileBytes(path), stencils);
  EXPECT_FALSE(QFile::exists(scratch));
}

TEST_F(StencilFilesTest, KilledAtAnyMomentNothingElseIsLost) {
  int moments = 0;
  for (bool killed = true; killed; ++moments) {
    QFile::remove(scratch);
    Put("aaaa aabb aabbaa aacc", "aacc aabbaa aaaa");
    killed = KilledAt(moments, [this] { Delete(u"aabb"_s); });
    const QString left = Keys().remove(u" aabbaa"_s).remove(u" aabb"_s).simplified();
    EXPECT_EQ(left, u"aaaa aacc|aacc aaaa") << moments;
    Delete(u"aabb"_s);
    EXPECT_EQ(KeysIn(path), u"aaaa aacc") << "the next delete brings it to its end";
  }
  EXPECT_GT(moments, 10);
}
