#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include "base/DataFiles.h"
#include "base/RecordFile.h"
#include "frame/Preferences.h"
#include "stencils/StencilRecord.h"

using Qt::StringLiterals::operator""_s;

namespace {

/// A delivered file as the build has just made it.
QString Delivered(const QString &name) {
  return u"" TAGWRIGHT_DATA_DIR "/"_s + name;
}

}  // namespace

// All but the last two of the table stop a start; of those the library still grows.
TEST(DeliveredFiles, HaveTheLengthsThatTheStartLooksFor) {
  EXPECT_EQ(FirstDefectDataFile(u"" TAGWRIGHT_DATA_DIR ""_s), std::nullopt);
  EXPECT_EQ(QFile(Delivered(u"File0009.dat"_s)).size(), DataFiles.back().bytes);
  EXPECT_EQ(QFile(u"" TAGWRIGHT_DELIVERED_PREFERENCES ""_s).size(), 3557);
}

// The window reads line by line: the html name is what stands up to the first ";", the number
// begins at the first "&" from the fifth character on and runs to the second ";".
TEST(DeliveredFiles, EverySpecialCharacterCutsIntoItsTwoCodes) {
  QFile file(Delivered(u"sc.dat"_s));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QStringList lines = QString::fromLatin1(file.readAll()).split(u"\r\n"_s);
  ASSERT_EQ(lines.size(), 236);
  EXPECT_TRUE(lines.last().isEmpty());
  static const QRegularExpression name(u"^&[A-Za-z]+[0-9]*;$"_s);
  static const QRegularExpression number(u"^&#[0-9]+;$"_s);
  for (const QString &line : lines.first(235)) {
    const qsizetype first = mText::InStr(1, line, u";");
    const qsizetype second = mText::InStr(first + 1, line, u";");
    EXPECT_TRUE(name.match(mText::Left(line, first)).hasMatch()) << line.toStdString();
    EXPECT_TRUE(number.match(mText::Mid(line, mText::InStr(5, line, u"&"), second)).hasMatch())
        << line.toStdString();
  }
}

TEST(DeliveredFiles, StencilsComeBehindTheirParentsUnderKeysOfTheirOwn) {
  QSet<QString> keys{u"aa"_s};
  int leaves = 0;
  RecordFile<StencilRecord>(Delivered(u"htLib0001.htf"_s))
      .Scan(1, [&](qint64 n, const StencilRecord &record) {
        const QString key = record.Key.Trimmed();
        const QString parent = record.ParentKey.Trimmed();
        EXPECT_TRUE(keys.contains(parent)) << n;
        EXPECT_FALSE(keys.contains(key)) << n;
        EXPECT_TRUE(key.startsWith(parent) && key.size() == parent.size() + 2) << n;
        EXPECT_EQ(key.back(), key[key.size() - 2]) << n;
        EXPECT_FALSE(record.Description.Trimmed().isEmpty()) << n;
        leaves += !record.HtmlSource.Trimmed().isEmpty();
        keys.insert(key);
        return true;
      });
  EXPECT_GT(leaves, 0);
}

TEST(DeliveredFiles, ABuildLeavesAUsersPreferencesAlone) {
  const QTemporaryDir folder;
  const QString mine = folder.filePath(u"preferences.dat"_s);
  const auto build = [&] {
    return QProcess::execute(u"" TAGWRIGHT_CMAKE ""_s,
                             {u"-DFROM=" TAGWRIGHT_DELIVERED_PREFERENCES ""_s, u"-DTO="_s + mine,
                              u"-P"_s, u"" TAGWRIGHT_COPY_IF_MISSING ""_s});
  };
  Preferences record = StandardPreferences();
  record.EditorFontSize = 14;
  ASSERT_TRUE(WritePreferencesFile(mine, record));
  ASSERT_EQ(build(), 0);
  ASSERT_TRUE(ReadPreferencesFile(mine, record));
  EXPECT_EQ(int(record.EditorFontSize), 14);

  ASSERT_TRUE(QFile::remove(mine));
  ASSERT_EQ(build(), 0);
  ASSERT_TRUE(ReadPreferencesFile(mine, record));
  EXPECT_EQ(record.EditorFontName.Trimmed(), u"Courier New"_s);
}
