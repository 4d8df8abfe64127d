#include "frame/PreferencesChoices.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>

#include "shared/Files.h"

namespace {

using Choices = PreferencesChoices;

QByteArray BytesOf(const Preferences &record) {
  return {reinterpret_cast<const char *>(&record), sizeof record};
}

QByteArray Text(const char *text, int size = 500) {
  return QByteArray(text).leftJustified(size);
}

// Where two records differ, and what stands there in the second: "offset:hex ...".
QString Difference(const Preferences &before, const Preferences &after) {
  const QByteArray a = BytesOf(before);
  const QByteArray b = BytesOf(after);
  QStringList pieces;
  for (int i = 0; i < a.size(); ++i) {
    if (a[i] == b[i]) continue;
    const int start = i;
    while (i < a.size() && a[i] != b[i]) ++i;
    pieces << QStringLiteral("%1:%2").arg(start).arg(
        QLatin1String(b.mid(start, i - start).toHex()));
  }
  return pieces.join(u' ');
}

TEST(PreferencesChoicesTest, EachChoiceIsItsFieldAndComesBack) {
  const Choices standard = ChoicesOf(StandardPreferences());
  EXPECT_EQ(Difference(StandardPreferences(), RecordOf(standard)), QString());
  const struct {
    std::function<void(Choices &)> choose;
    const char *difference;
  } cases[] = {
      {[](auto &c) { c.otherImageSettings = true; }, "0:0000ffff"},
      {[](auto &c) { c.imageHeight = 3; }, "4:03"},
      {[](auto &c) { c.imageWidth = 2; }, "8:02"},
      {[](auto &c) { c.showFilenames = true; }, "12:01"},
      {[](auto &c) { c.showImageBorder = true; }, "13:01"},
      {[](auto &c) { c.otherPreviewer = true; }, "14:0000ffff"},
      {[](auto &c) { c.applicationPath = QStringLiteral("a b"); }, "18:61 20:62"},
      {[](auto &c) { c.shapeColor = 1; }, "518:01"},
      {[](auto &c) { c.otherAppFont = true; }, "519:0000ffff"},
      {[](auto &c) { c.stencilsFolder = QStringLiteral("/s"); }, "527:2f73"},
      {[](auto &c) {
         c.otherStencilsFolder = true;
         c.stencilsFolder = QStringLiteral("/s");
       },
       "523:0000ffff2f73"},
      {[](auto &c) { c.appFontSize = 3; }, "1027:03"},
      {[](auto &c) { c.showStartWindow = false; }, "1031:0000"},
      {[](auto &c) { c.forceDatabaseLoading = true; }, "1035:ffff"},
      {[](auto &c) { c.otherEditorSettings = true; }, "1037:0000"},
      {[](auto &c) {
         c.otherEditorSettings = true;
         c.fontName = QStringLiteral("Courier Mew");
         c.fontSize = QStringLiteral("14");
         c.tabulatorCount = QStringLiteral("300");
       },
       "1037:0000 1047:4d 1539:0e 1541:2c01"},
      {[](auto &c) { c.temporaryFolder = QStringLiteral("/t"); }, "1545:2f74"},
      {[](auto &c) {
         c.otherTemporaryFolder = true;
         c.temporaryFolder = QStringLiteral("/t");
       },
       "1543:00002f74"},
      {[](auto &c) {
         c.fileBinding = true;
         c.fileExtension = QStringLiteral(".php");
         c.fileBindingCommand = QStringLiteral("x");
       },
       "2045:ffff2e706870 2057:78"},
      {[](auto &c) { c.compilerPath = QStringLiteral("j"); }, "2557:6a"},
      {[](auto &c) { c.appletViewerPath = QStringLiteral("v"); }, "3057:76"},
  };
  for (const auto &[choose, difference] : cases) {
    Choices choices = standard;
    choose(choices);
    const Preferences record = RecordOf(choices);
    EXPECT_EQ(Difference(StandardPreferences(), record), QLatin1String(difference));
    EXPECT_TRUE(ChoicesOf(record) == choices) << difference;
  }
}

TEST(PreferencesChoicesTest, StandardSettingsPutAsideWhatStandsInTheirControls) {
  Choices choices = ChoicesOf(StandardPreferences());
  choices.fontName = QStringLiteral("Serif");
  choices.fontSize = QStringLiteral("72");
  choices.tabulatorCount = QStringLiteral("9");
  choices.fileExtension = QStringLiteral(".x");
  choices.fileBindingCommand = QStringLiteral("x");
  choices.otherStencilsFolder = choices.otherTemporaryFolder = true;
  choices.stencilsFolder = choices.temporaryFolder = QStringLiteral("   ");
  EXPECT_EQ(Difference(StandardPreferences(), RecordOf(choices)), QString());
  choices.otherEditorSettings = true;
  choices.fontName = choices.fontSize = QString();
  const Preferences record = RecordOf(choices);
  EXPECT_EQ(record.EditorFontName.Trimmed(), QString()) << "none is selected";
  EXPECT_EQ(record.EditorFontSize, 10);
}

TEST(PreferencesChoicesTest, CountsAreWholeAndFitTheirField) {
  const std::pair<const char16_t *, int> counts[] = {
      {u"", 0},      {u"four", 0},  {u"6 blanks", 6}, {u"2.5", 2},   {u"3.5", 4},
      {u"-3", 0},    {u"99999", 0}, {u"+7", 7},       {u" 1 2", 12}, {u"32767", 32767},
      {u"32768", 0}, {u"1E99", 0},  {u"&H10", 16},    {u"2,5", 2}};
  for (const auto &[text, count] : counts) {
    Choices choices;
    choices.otherEditorSettings = true;
    choices.tabulatorCount = QString::fromUtf16(text);
    EXPECT_EQ(RecordOf(choices).TabulatorCount, count) << qPrintable(choices.tabulatorCount);
  }
}

TEST(PreferencesChoicesTest, TextsAreTrimmedCutAndOfTheCodePage) {
  const std::pair<QString, QByteArray> texts[] = {
      {QString(), Text("")},
      {QStringLiteral("a"), Text("a")},
      {QStringLiteral("  a b  "), Text("a b")},
      {QString(500, u'p'), QByteArray(500, 'p')},
      {QString(501, u'p'), QByteArray(500, 'p')},
      {QStringLiteral("€ä→\U0001F600"), Text("\x80\xE4??")},
  };
  for (const auto &[text, bytes] : texts) {
    Choices choices;
    choices.fileBinding = true;
    choices.applicationPath = choices.stencilsFolder = choices.temporaryFolder = text;
    choices.fileBindingCommand = choices.compilerPath = choices.appletViewerPath = text;
    choices.fileExtension = text;
    const QByteArray record = BytesOf(RecordOf(choices));
    for (const int offset : {18, 527, 1545, 2057, 2557, 3057}) {
      EXPECT_EQ(record.mid(offset, 500), bytes) << offset;
    }
    EXPECT_EQ(record.mid(2047, 10), bytes.left(10));
  }
}

TEST(PreferencesChoicesTest, AnyRecordGivesOneWithOneFlagOfEachPair) {
  for (const char byte : {'\0', '\x7F', '\xFF', ' '}) {
    Preferences record;
    std::memset(static_cast<void *>(&record), byte, sizeof record);
    const Preferences written = RecordOf(ChoicesOf(record));
    EXPECT_NE(written.StandardImageSettings, written.OtherImageSettings);
    EXPECT_NE(written.StandartWebBrowser, written.OtherPreViewer);
    EXPECT_NE(written.UseAppStandard, written.UseOtherAppProperties);
    EXPECT_NE(written.SelfStencilsStandardPath, written.SelfStencilsOtherPath);
    for (const qint32 index : {qint32(written.ImageHeight), qint32(written.ImageWidth),
                               qint32(written.ShapeColor), qint32(written.AppFontSize)}) {
      EXPECT_TRUE(index >= 0 && index <= 3) << index;
    }
    EXPECT_TRUE(written.ShowFilenames <= 1 && written.ShowImageBorder <= 1);
    EXPECT_GE(written.TabulatorCount, 0);
    EXPECT_TRUE(ChoicesOf(RecordOf(ChoicesOf(written))) == ChoicesOf(written));
  }
}

TEST(PreferencesChoicesTest, AnApplicationIsKnownByThePlatformsRule) {
  const std::pair<const char *, bool> names[] = {
      {"C:\\a\\web.exe", true},  {"C:\\a\\web.EXE", false},    {"C:\\a\\.exe", false},
      {"C:\\a.exe\\web", false}, {"C:\\a\\web.exe.txt", true}, {"x.exe", true}};
  for (const auto &[name, good] : names) {
    EXPECT_EQ(IsApplication(QLatin1String(name), mPlatform::Original()), good) << name;
  }
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("web.exe"));
  PutFile(path, "x");
  EXPECT_FALSE(IsApplication(path, mPlatform::Current()));
  QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
  EXPECT_TRUE(IsApplication(path, mPlatform::Current()));
  EXPECT_FALSE(IsApplication(folder.path(), mPlatform::Current())) << "a folder";
}

}  // namespace
