#include <gtest/gtest.h>

#include <functional>

#include "PixelArt.h"
#include "SpecialCharacters.h"
#include "StencilLibrary.h"

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
void MakeStencils(const QString &text) {
  StencilLibrary().Add(Source(text));
}

/// Two cells side by side, seven points drawn of eight records.
const QString strip = u"size 48 24\ncells across\nbytes 96\ncolour k #010203\n"_s;
const QString twoButtons = strip + u"button one\nkk\nk.\n\nbutton two\nk\n"_s;
const QString entry = u"# A\nhelp\n```\n<a>\n```\n"_s;

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
      {MakePixels, strip + u"colour k #ffffff"_s, "art.txt:5: \"k\" has a colour already"},
      {MakePixels, u"\nsise 48 24"_s, "art.txt:2: not understood: sise 48 24"},
      {MakeCharacters, u"lt 60\n\ngt 6x2"_s, "art.txt:3: not a name and a number"},
      {MakeCharacters, u"lt 60\nle 60"_s, "art.txt:2: 60 comes twice"},
      {MakeCharacters, u"; one\nlt 60"_s,
       "art.txt:2: 1 characters in 12 bytes, must be 235 in 3741"},
      {MakeStencils, u"# A\nhelp\n"_s + u"## B\nhelp\n```\nb\n```\n"_s.repeated(27),
       "art.txt:133: the parent has 26 sub-entries already"},
      {MakeStencils, u"# "_s + QString(101, u'A') + entry.mid(3),
       "art.txt:1: 101 characters, the field holds 100"},
      {MakeStencils, u"# A\n\n"_s + u"help \n"_s.repeated(151) + entry.mid(9),
       "art.txt:3: 754 characters, the field holds 750"},
      {MakeStencils, entry + u"# \u2192"_s, "art.txt:6: a character outside code page 1252"},
      {MakeStencils, entry + u"# B\n```\nb\n```"_s, "art.txt:6: no help text"},
      {MakeStencils, entry + u"### B\nhelp\n```\nb\n```"_s, "art.txt:6: a level is skipped"},
      {MakeStencils, entry + u"# B\nhelp\n# C"_s, "art.txt:6: neither source nor sub-entries"},
      {MakeStencils, u"# A\nhelp\n```\n  <a>\n```"_s,
       "art.txt:3: an empty source, or one with blanks at its ends"},
      {MakeStencils, u"# A\nhelp\n```\n<a>"_s, "art.txt:3: a source without end"},
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

TEST(MakeData, PutsAStencilTogetherFromItsSource) {
  StencilLibrary library;
  library.Add(
      Source(u"notes\n# A\nabout\n## B\ncaption: b\none\ntwo\n- item\nmore\n\nlast\n"
             u"```\n# <b>\n\n  </b>\n\n```\n### C\nc\n```\nc\n```\n## D\nd\n```\nd\n```"_s));
  library.Add(Source(entry));
  QStringList keys;
  for (const StencilRecord &record : library.records()) {
    keys << record.ParentKey.Trimmed() + u'>' + record.Key.Trimmed();
  }
  EXPECT_EQ(keys, (QStringList{u"aa>aaaa"_s, u"aaaa>aaaaaa"_s, u"aaaaaa>aaaaaaaa"_s,
                               u"aaaa>aaaabb"_s, u"aa>aabb"_s}));
  const StencilRecord &record = library.records()[1];
  EXPECT_EQ(record.Header.Trimmed(), u"B"_s);
  EXPECT_EQ(record.TextCaption.Trimmed(), u"b"_s);
  EXPECT_EQ(record.HtmlSource.Trimmed(), u"# <b>\r\n\r\n  </b>\r\n"_s);
  EXPECT_EQ(record.Description.Trimmed(), u"one two\r\n- item more\r\n\r\nlast"_s);
  EXPECT_EQ(library.records()[0].TextCaption.Trimmed(), u"A"_s);
}
