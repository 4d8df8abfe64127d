#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "base/mFolders.h"
#include "frame/mPublic.h"
#include "shared/Stencils.h"
#include "stencils/ExportRow.h"
#include "stencils/QuickBar.h"
#include "stencils/StencilSearch.h"

namespace {

QStringList Words(const char *words) {
  return QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
}

class StencilFilesTest : public testing::Test {
 protected:
  QTemporaryDir folder;
  const QString path = folder.filePath(StencilFiles::SelfBuilt);
  const QString bar = folder.filePath(StencilFiles::QuickBar);
  const QString scratch = folder.filePath(StencilFiles::Scratch);
};

TEST_F(StencilFilesTest, TheLowestFreeLetterMakesTheNextKey) {
  const QString full(100, u'a');
  QStringList children;
  for (char16_t letter = u'a'; letter <= u'z'; ++letter)
    children << StencilFiles::RootKey + QString(2, letter);
  QStringList withGap = children;
  withGap.removeAt(2);
  struct Case {
    QStringList keys;
    QString parent;
    QString next;
  };
  for (const Case &row :
       {Case{{}, Words("aa")[0], QStringLiteral("aaaa")},
        Case{Words("aaaa aacc aaaaaa"), Words("aa")[0], QStringLiteral("aabb")},
        Case{Words("AAAA aaaab aab aaBB aaab"), Words("aa")[0], QStringLiteral("aaaa")},
        Case{Words("aaaa aaaaaa aaaabb"), Words("aaaa")[0], QStringLiteral("aaaacc")},
        Case{children, Words("aa")[0], StencilFiles::NoKey},
        Case{withGap, Words("aa")[0], QStringLiteral("aacc")},
        Case{{full}, full, full + StencilFiles::RootKey}}) {
    PutStencils(path, row.keys);
    EXPECT_EQ(StencilFiles::NextFreeStencilKey(path, row.parent), row.next);
  }
  EXPECT_EQ(StencilFiles::NextFreeStencilKey(folder.filePath(QStringLiteral("gone")),
                                             StencilFiles::RootKey),
            QStringLiteral("aaaa"));
}

TEST_F(StencilFilesTest, TheFirstRecordOfAKeyIsFoundInWhateverFile) {
  PutStencils(path, Words("aaaa aabb aabb aaAA"));
  EXPECT_EQ(StencilFiles::StencilCount(path), 4);
  EXPECT_EQ(StencilFiles::FindStencil(path, QStringLiteral("aabb"))->Header.Trimmed(),
            QStringLiteral("Haabb"));
  EXPECT_EQ(StencilFiles::FindStencil(path, QStringLiteral("aaAA"))->Header.Trimmed(),
            QStringLiteral("HaaAA"));
  for (const QByteArray &bytes :
       {QByteArray(), QByteArray("x"), QByteArray(2650, '\0'), QByteArray(4000, 'q')}) {
    PutFile(path, bytes);
    EXPECT_FALSE(StencilFiles::FindStencil(path, QStringLiteral("aaaa")));
    EXPECT_EQ(FileBytes(path), bytes);
  }
  EXPECT_FALSE(StencilFiles::FindStencil(folder.path(), QStringLiteral("aaaa")));
}

TEST_F(StencilFilesTest, DataFilesFollowThePreferencesOfTheMoment) {
  const auto resolved = [](bool other, const QString &where) {
    mPublic::recPreferences = StandardPreferences();
    mPublic::recPreferences.SelfStencilsOtherPath = other;
    mPublic::recPreferences.OtherStencilsPath.Set(where);
    EXPECT_TRUE(mPublic::WritePreferences());
    mPublic::recPreferences = {};
    return StencilFiles::ResolveDataFile(StencilFiles::QuickBar);
  };
  EXPECT_EQ(resolved(false, folder.path()), mFolders::InProgramFolder(StencilFiles::QuickBar));
  EXPECT_EQ(resolved(true, u' ' + folder.path()), bar);
  EXPECT_EQ(resolved(true, QStringLiteral("/data/")), QStringLiteral("/data//htLib0003.htf"));
}

TEST_F(StencilFilesTest, TheQuickBarTakesAHundredAndEachOnce) {
  using QuickBar::Adding;
  EXPECT_EQ(QuickBar::Add(bar, QStringLiteral("aaaa")), Adding::Added);
  EXPECT_EQ(FileBytes(bar), QByteArray("aaaa").leftJustified(100));
  EXPECT_EQ(QuickBar::Add(bar, QStringLiteral("aaaa")), Adding::Present);
  for (int i = 2; i <= 100; ++i) EXPECT_EQ(QuickBar::Add(bar, QString::number(i)), Adding::Added);
  EXPECT_EQ(QuickBar::Add(bar, QStringLiteral("aaaa")), Adding::Full);
  EXPECT_EQ(QuickBar::Add(bar, {}), Adding::Nothing);
  EXPECT_EQ(QuickBar::Keys(bar).size(), 100);
}

TEST_F(StencilFilesTest, QuickBarEntriesShowTheirStencilsHeaderAndGoByKey) {
  PutStencils(path, Words("aaaa aabb aabb aacc"));
  PutQuickBar(bar, Words("aacc gone aaaa aacc"));
  EXPECT_EQ(QuickBar::Headers(path, QuickBar::Keys(bar)), Words("Haacc Haaaa Haacc"));
  ASSERT_TRUE(QuickBar::Remove(bar, scratch, QStringLiteral("aacc")));
  EXPECT_EQ(QuickBar::Keys(bar), Words("gone aaaa"));
  EXPECT_FALSE(QFile::exists(scratch));
}

TEST_F(StencilFilesTest, SearchLooksIntoEachFieldByItself) {
  PutStencils(path, Words("aaaa aabb aacc"));
  StencilFile(path).Append(Stencil({}, QStringLiteral("blanked")));
  struct Case {
    const char *phrase;
    bool matchCase;
    int first;
    int hit;
  };
  for (const auto &[phrase, matchCase, first, hit] : {Case{"", true, 1, 1},
                                                      {"", true, 2, 2},
                                                      {"", true, 4, 0},
                                                      {"AABB", false, 1, 2},
                                                      {"AABB", true, 1, 0},
                                                      {"help Haacc", true, 1, 3},
                                                      {"Haacc  ", true, 1, 3},
                                                      {"Haacc <", true, 1, 0},
                                                      {"blanked", false, 1, 0},
                                                      {"cap", true, 3, 3}}) {
    const auto found = SearchStencils(path, QString::fromLatin1(phrase),
                                      matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive, first,
                                      [] { return true; });
    EXPECT_EQ(found ? int(found->record) : 0, hit) << phrase;
    EXPECT_TRUE(!found || found->parentKey == StencilFiles::RootKey);
  }
}

TEST_F(StencilFilesTest, AnExportRowPadsTheHeaderAlone) {
  StencilRecord record =
      Stencil(QStringLiteral("aaaa"), QStringLiteral("head"), QStringLiteral("a\r\nb"));
  EXPECT_EQ(ExportRow(record, ",\t"),
            QByteArray("head").leftJustified(100) + ",\ta\r\nb,\tcap head,\thelp head,\t\r\n\r\n");
}

}  // namespace
