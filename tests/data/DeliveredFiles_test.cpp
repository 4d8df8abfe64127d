#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include "base/DataFiles.h"
#include "base/RecordFile.h"
#include "shared/Files.h"
#include "stencils/StencilRecord.h"

using Qt::StringLiterals::operator""_s;

/// Where the build has just made the delivered files.
static const QDir delivered(u"" TAGWRIGHT_DATA_DIR ""_s);
static const QString deliveredPreferences = u"" TAGWRIGHT_DELIVERED_PREFERENCES ""_s;

// The start-up test of the program refuses a folder in which one of these lengths differs.
TEST(DeliveredFiles, HaveTheLengthsThatTheStartLooksFor) {
  EXPECT_EQ(FirstDefectDataFile(delivered.path()), std::nullopt);
  EXPECT_EQ(QFile(delivered.filePath(u"File0009.dat"_s)).size(), 2556);
  EXPECT_EQ(QFile(delivered.filePath(u"htLib0001.htf"_s)).size(), 2904400);
  EXPECT_EQ(QFile(deliveredPreferences).size(), 3557);
  const QByteArray placeholder = FileBytes(delivered.filePath(u"NoImage.bmp"_s));
  EXPECT_TRUE(placeholder.startsWith("BM") && placeholder.size() == 14 + 108 + 4 * 32 * 32);
}

// The window reads line by line: the html name is what stands up to the first ";", the number
// begins at the first "&" from the fifth character on and runs to the second ";".
TEST(DeliveredFiles, EverySpecialCharacterCutsIntoItsTwoCodes) {
  const QRegularExpression lines(u"\\A(&[A-Za-z]{2,}[0-9]*; &#[0-9]+;\r\n){235}\\z"_s);
  const QByteArray text = FileBytes(delivered.filePath(u"sc.dat"_s));
  EXPECT_TRUE(lines.match(QString::fromLatin1(text)).hasMatch()) << text.constData();
}

TEST(DeliveredFiles, StencilsComeBehindTheirParentsUnderKeysOfTheirOwn) {
  QSet<QString> keys{u"aa"_s};
  const auto visit = [&](qint64 n, const StencilRecord &record) {
    const QString key = record.Key.Trimmed();
    const QString parent = record.ParentKey.Trimmed();
    EXPECT_TRUE(keys.contains(parent) && !keys.contains(key)) << n;
    EXPECT_EQ(key, parent + QString(2, key.back())) << n;
    keys.insert(key);
    return true;
  };
  RecordFile<StencilRecord>(delivered.filePath(u"htLib0001.htf"_s)).Scan(1, visit);
  EXPECT_EQ(keys.size(), 1 + 1096) << "with the root";
}

TEST(DeliveredFiles, ABuildLeavesAUsersPreferencesAlone) {
  const QTemporaryDir folder;
  const QString mine = folder.filePath(u"preferences.dat"_s);
  const QStringList copy{u"-DFROM="_s + deliveredPreferences, u"-DTO="_s + mine, u"-P"_s,
                         u"" TAGWRIGHT_COPY_IF_MISSING ""_s};
  ASSERT_EQ(QProcess::execute(u"" TAGWRIGHT_CMAKE ""_s, copy), 0);
  EXPECT_EQ(FileBytes(mine).mid(1039, 12), "Courier New ") << "the standard font of the editor";
  PutFile(mine, "mine");
  ASSERT_EQ(QProcess::execute(u"" TAGWRIGHT_CMAKE ""_s, copy), 0);
  EXPECT_EQ(FileBytes(mine), "mine");
}
