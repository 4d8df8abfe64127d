#include "frame/Preferences.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cstring>

#include "shared/Files.h"

namespace {

TEST(PreferencesTest, TheRecordIsTheFileToTheByte) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("preferences.dat"));
  Preferences record = StandardPreferences();
  record.ImageWidth = 3;
  record.ShapeColor = 2;
  record.OtherStencilsPath.Set(QString(600, u'p'));
  record.FileExtension.Set(u"12345678901");
  record.EditorFontSize = 258;
  ASSERT_TRUE(WritePreferencesFile(path, record));
  const QByteArray bytes = FileBytes(path);
  EXPECT_EQ(bytes.size(), 3557);
  EXPECT_EQ(bytes.mid(0, 4), QByteArray("\xFF\xFF\0\0", 4)) << "a pair of flags";
  EXPECT_EQ(bytes[8], 3);
  EXPECT_EQ(bytes[518], 2);
  EXPECT_EQ(bytes.mid(527, 501), QByteArray(500, 'p') + '\0')
      << "cut at its field, AppFontSize behind";
  EXPECT_EQ(bytes.mid(1031, 2), "\xFF\xFF");
  EXPECT_EQ(bytes.mid(1039, 12), "Courier New ");
  EXPECT_EQ(bytes.mid(1539, 4), QByteArray("\2\1\4\0", 4));
  EXPECT_EQ(bytes.mid(2047, 11), "1234567890 ");
  EXPECT_EQ(bytes.mid(3057, 500), QByteArray(500, ' '));

  Preferences again{};
  ASSERT_TRUE(ReadPreferencesFile(path, again));
  EXPECT_EQ(std::memcmp(&again, &record, sizeof record), 0);
  EXPECT_EQ(again.OtherStencilsPath.Trimmed().size(), 500);
  EXPECT_FALSE(ReadPreferencesFile(folder.filePath(QStringLiteral("none")), again));
}

TEST(PreferencesTest, FontSizesFollowTheIndexWithoutATest) {
  Preferences record = StandardPreferences();
  record.AppFontSize = 3;
  EXPECT_EQ(PanelFontSize(record), 8.0) << "only a record with sizes of its own has them";
  record.UseOtherAppProperties = true;
  const std::pair<int, double> sizes[] = {{0, 8}, {1, 10}, {2, 12}, {3, 14}, {4, 0}, {-1, 0}};
  for (const auto &[index, size] : sizes) {
    record.AppFontSize = index;
    EXPECT_EQ(PanelFontSize(record), size) << index;
  }
  EXPECT_EQ(TitleFontSize(8), 8);
  EXPECT_EQ(TitleFontSize(10), 8);
  record.UseOtherAppProperties.raw = 1;
  EXPECT_EQ(PanelFontSize(record), 8.0) << "only -1 is true";
}

}  // namespace
