#include "base/mText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(mText, TrimTakesBlanksOnly) {
  EXPECT_EQ(mText::Trim(u"  a b  "), u"a b");
  EXPECT_EQ(mText::Trim(u" \t\r\n "), u"\t\r\n");
  EXPECT_EQ(mText::Trim(u"\u00A0x\u00A0"), u"\u00A0x\u00A0");
  EXPECT_EQ(mText::Trim(u"    "), u"");
}

TEST(mText, ValReadsTheLeadingNumber) {
  const struct {
    const char16_t *text;
    double value;
  } cases[] = {{u" 1 2 px", 12},    {u"- 5", -5},        {u"+1.5.2", 1.5}, {u"-.5x", -0.5},
               {u"1,5", 1},         {u"1\t2", 1},        {u"1E3.5", 1000}, {u"1d-2", 0.01},
               {u"2E+", 2},         {u"& H 1 g", 1},     {u"&hffff", -1},  {u"&H8000", -32768},
               {u"&H0FFFF", 65535}, {u"&HFFFFFFFF", -1}, {u"&O17", 15},    {u"&o177777", -1},
               {u"&O200000", 65536}};
  for (const auto &[text, value] : cases) {
    EXPECT_EQ(mText::Val(text), value) << QStringView(text).toString();
  }
  for (const char16_t *nothing : {u"", u"px", u"--7", u".", u"E5", u"1E999", u"&", u"&O8",
                                  u"&H100000000", u"\u0661", u"nan", u"inf"}) {
    EXPECT_EQ(mText::Val(nothing), 0) << QStringView(nothing).toString();
  }
}

TEST(mText, NumbersAreWrittenAlikeInEveryLocale) {
  const struct {
    double number;
    const char16_t *text;
  } cases[] = {{-0.0, u" 0"},
               {3, u" 3"},
               {-0.5, u"-0.5"},
               {0.1 + 0.2, u" 0.3"},
               {1200, u" 1200"},
               {0.00001, u" 0.00001"},
               {999999999999999.9, u" 1E+15"},
               {1e40, u" 1E+40"},
               {-1.5e300, u"-1.5E+300"},
               {2.5e-16, u" 2.5E-16"},
               {INFINITY, u" 0"}};
  for (const auto &[number, text] : cases) {
    EXPECT_EQ(mText::Str(number), text);
    EXPECT_EQ(mText::NumberText(number), mText::Trim(text));
  }
}

TEST(mText, InStrCountsFromOne) {
  EXPECT_EQ(mText::InStr(1, u"abcabc", u"c"), 3);
  EXPECT_EQ(mText::InStr(4, u"abcabc", u"c"), 6);
  EXPECT_EQ(mText::InStr(1, u"ABC", u"b"), 0);
  EXPECT_EQ(mText::InStr(1, u"ABC", u"b", Qt::CaseInsensitive), 2);
  EXPECT_EQ(mText::InStr(0, u"abc", u"a"), 0);
  EXPECT_EQ(mText::InStr(4, u"abc", u""), 4);
  EXPECT_EQ(mText::InStr(5, u"abc", u""), 0);
}

TEST(mText, PiecesEndWhereTheTextEnds) {
  constexpr qsizetype far = std::numeric_limits<qsizetype>::max();
  EXPECT_EQ(mText::Mid(u"abc", 2, 1), u"b");
  EXPECT_EQ(mText::Mid(u"abc", 2, far), u"bc");
  EXPECT_EQ(mText::Mid(u"abc", far, far), u"");
  EXPECT_EQ(mText::Mid(u"abc", 0, 2), u"");
  EXPECT_EQ(mText::Mid(u"abc", 2, -1), u"");
  EXPECT_EQ(mText::Mid(u"abc", 3), u"c");
  EXPECT_EQ(mText::Left(u"abc", 9) + mText::Left(u"abc", -1), u"abc");
  EXPECT_EQ(mText::Right(u"abc", 2) + mText::Right(u"abc", 9) + mText::Right(u"abc", -1), u"bcabc");
}

TEST(mText, ReplaceAllTextKeepsItsHabits) {
  const struct {
    const char16_t *text, *find, *replacement, *result;
  } cases[] = {{u"a<BR>b<br>c", u"<br>", u"-", u"a-b-c"},
               {u"no hit  ", u"x", u"y", u"no hit  "},
               {u"x tail  ", u"x", u"y", u"y tail"},  // the blanks behind go
               {u"x   ", u"x", u"y  ", u"y  "},       // but not the replacement's own
               {u"aaaa", u"a", u"", u"aa"},           // a removal passes over one character
               {u"bcc", u"bc", u"ab", u"aab"},        // the replacement's end is part of a hit
               {u"a\nb\n", u"\n", u"\r\n", u"a\r\nb\r\n"},  // but never without end
               {u"abc", u"", u"x", u"abc"}};
  for (const auto &[text, find, replacement, result] : cases) {
    EXPECT_EQ(mText::ReplaceAllText(text, find, replacement), result);
  }
}

TEST(mText, RoundsHalvesToTheEvenNeighbour) {
  const std::pair<double, qint64> cases[] = {{0.5, 0},
                                             {1.5, 2},
                                             {2.5, 2},
                                             {-0.5, 0},
                                             {-1.5, -2},
                                             {-2.51, -3},
                                             {0.49999999999999994, 0},
                                             {1e300, std::numeric_limits<qint64>::max()},
                                             {NAN, 0}};
  for (const auto &[number, rounded] : cases) {
    EXPECT_EQ(mText::RoundToEven(number), rounded) << number;
  }
}

}  // namespace
