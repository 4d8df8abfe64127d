#include "frame/PreferencesChoices.h"

#include <gtest/gtest.h>

using Qt::StringLiterals::operator""_s;

TEST(PreferencesChoicesTest, StandardSettingsPutAsideWhatStandsInTheirControls) {
  PreferencesChoices choices = ChoicesOf(StandardPreferences());
  choices.fontName = u"Serif"_s;
  choices.fontSize = choices.tabulatorCount = u"9"_s;
  choices.fileExtension = choices.fileBindingCommand = u"x"_s;
  choices.otherStencilsFolder = choices.otherTemporaryFolder = true;
  choices.stencilsFolder = choices.temporaryFolder = u"   "_s;
  const Preferences record = RecordOf(choices);
  const Preferences delivered = StandardPreferences();
  EXPECT_EQ(std::memcmp(&record, &delivered, sizeof record), 0);
  choices.otherEditorSettings = true;
  choices.fontSize = QString();
  EXPECT_EQ(RecordOf(choices).EditorFontSize, 10) << "none is selected";
}

TEST(PreferencesChoicesTest, CountsAreWholeAndFitTheirField) {
  QString counts;
  for (const char *text : {"", "four", "6 blanks", "2.5", "3.5", "-3", "+7", " 1 2", "32767",
                           "32768", "1E99", "&H10", "2,5"}) {
    PreferencesChoices choices;
    choices.otherEditorSettings = true;
    choices.tabulatorCount = QLatin1String(text);
    counts += u" %1"_s.arg(RecordOf(choices).TabulatorCount);
  }
  EXPECT_EQ(counts, u" 0 0 6 2 4 0 7 12 32767 0 0 16 2"_s);
}

TEST(PreferencesTest, FontSizesFollowTheIndexOfARecordWithSizesOfItsOwn) {
  Preferences record = StandardPreferences();
  record.AppFontSize = 3;
  record.UseOtherAppProperties.raw = 1;
  EXPECT_EQ(PanelFontSize(record), 8) << "only -1 is true";
  record.UseOtherAppProperties = true;
  record.AppFontSize = 4;
  EXPECT_EQ(PanelFontSize(record), 0);
  EXPECT_EQ(TitleFontSize(10), 8);
}
