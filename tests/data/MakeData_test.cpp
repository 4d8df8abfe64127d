#include <gtest/gtest.h>

#include <functional>

#include "PixelArt.h"
#include "SpecialCharacters.h"

using Qt::StringLiterals::operator""_s;

namespace {

SourceText Source(const QString &text) {
  return {u"art.txt"_s, text.split(u'\n')};
}

void MakePixels(const QString &text) {
  PixelRecords(Source(text));
}
void MakeCharacters(const QString &text) {
  SpecialCharacterLines(Source(text));
}

/// Two cells side by side, seven points drawn of eight records.
const QString strip = u"size 48 24\ncells across\nbytes 96\ncolour k #010203\n"_s;
const QString twoButtons = strip + u"button one\nkk\nk.\n\nbutton two\nk\n"_s;

}  // namespace

TEST(MakeData, RefusesASourceThatBreaksARuleWithFileAndLine) {
  const struct {
    std::function<void(const QString &)> make;
    QString text;
    std::string message;
  } cases[] = {
      {MakePixels, strip + u"button one\nkk\nkx\n"_s, "art.txt:7: \"x\" has no colour"},
      {MakePixels, strip + u"button one\nkk\nk\n"_s, "art.txt:7: a row of 1 among rows of 2"},
      {MakePixels, strip + u"button\n"_s + QString(23, u'k'),
       "art.txt:6: a point on the frame of its cell or outside"},
      {MakePixels, strip + u"button\nkkkk\nkkkk"_s,
       "art.txt:7: more than the 7 points of the file"},
      {MakePixels, strip + u"button\nk\n"_s, "art.txt:7: 1 pictures for 2 cells"},
      {MakePixels, twoButtons + u"\nbutton three\nk"_s,
       "art.txt:12: a picture too many, there are 2 cells"},
      {MakePixels, strip + u"colour k #ffffff"_s, "art.txt:5: \"k\" has a colour already"},
      {MakePixels, u"bytes 100"_s, "art.txt:1: not a whole number of records"},
      {MakePixels, u"\nsise 48 24"_s, "art.txt:2: not understood: sise 48 24"},
      {MakeCharacters, u"lt 60\n\ngt 6x2"_s, "art.txt:3: not a name and a number"},
      {MakeCharacters, u"lt 60\nle 60"_s, "art.txt:2: 60 comes twice"},
      {MakeCharacters, u"lt 60\nlt 62"_s, "art.txt:2: lt comes twice"},
      {MakeCharacters, u"; one\nlt 60"_s,
       "art.txt:2: 1 characters in 12 bytes, must be 235 in 3741"},
  };
  for (const auto &[make, text, message] : cases) {
    try {
      make(text);
      ADD_FAILURE() << "taken, instead of: " << message;
    } catch (const SourceError &error) {
      EXPECT_EQ(error.what(), message);
    }
  }
}

TEST(MakeData, CentresArtInItsCellAndDrawsTheFirstPointsAgainInWhatIsLeft) {
  const std::vector<PixelRecord> records = PixelRecords(Source(twoButtons));
  ASSERT_EQ(records.size(), 8u);
  const int points[][2] = {{11, 11}, {12, 11}, {11, 12}, {35, 11}};
  for (int n = 0; n < 8; ++n) {
    EXPECT_EQ(records[n].x, points[n % 4][0]) << n;
    EXPECT_EQ(records[n].y, points[n % 4][1]) << n;
    EXPECT_EQ(records[n].colour, 1 + 256 * 2 + 65536 * 3) << n;
  }
}
