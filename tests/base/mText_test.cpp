#include "base/mText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(mText, TrimTakesBlanksOnly) {
  EXPECT_EQ(mText::Trim(u"  a b  ") + mText::Trim(u"    "), u"a b");
  EXPECT_EQ(mText::Trim(u" \t\u00A0x\u00A0\r\n "), u"\t\u00A0x\u00A0\r\n");
}

TEST(mText, ValReadsTheLeadingNumber) {
  const std::pair<const char *, double> cases[] = {
      {" 1 2 px", 12},    {"- 5", -5},        {"+1.5.2", 1.5},  {"-.5x", -0.5},
      {"1,5", 1},         {"1\t2", 1},        {"1E3.5", 1000},  {"1d-2", 0.01},
      {"2E+", 2},         {"& H 1 g", 1},     {"&hffff", -1},   {"&H8000", -32768},
      {"&H0FFFF", 65535}, {"&HFFFFFFFF", -1}, {"&o177777", -1}, {"&O200000", 65536}};
  for (const auto &[text, value] : cases)
    EXPECT_EQ(mText::Val(QString::fromUtf8(text)), value) << text;
  for (const char *text :
       {"", "px", "--7", ".", "E5", "1E999", "&", "&O8", "nan", "inf", "&H100000000", "\u0661"}) {
    EXPECT_EQ(mText::Val(QString::fromUtf8(text)), 0) << text;
  }
}

TEST(mText, NumbersAreWrittenAlikeInEveryLocale) {
  QString written;
  for (const double number : {-0.0, 3.0, -0.5, 0.1 + 0.2, 2.0 / 3, 1200.0, 123456789012345.0,
                              999999999999999.9, -1.5e300, 2.5e-16, 1e-15, double(INFINITY)}) {
    written += mText::Str(number);
    EXPECT_EQ(mText::NumberText(number), mText::Trim(mText::Str(number)));
  }
  EXPECT_EQ(written,
            u" 0 3-0.5 0.3 0.666666666666667 1200 123456789012345 1E+15-1.5E+300 2.5E-16"
            u" 0.000000000000001 0");
}

TEST(mText, PositionsCountFromOneAndPiecesEndWhereTheTextEnds) {
  EXPECT_EQ(mText::InStr(4, u"abCabc", u"c"), 6);
  EXPECT_EQ(mText::InStr(1, u"abCabc", u"c", Qt::CaseInsensitive), 3);
  EXPECT_EQ(mText::InStr(4, u"abc", u""), 4);
  EXPECT_EQ(mText::InStr(0, u"abc", u"a") + mText::InStr(5, u"abc", u""), 0) << "out of range";
  constexpr qsizetype far = std::numeric_limits<qsizetype>::max();
  EXPECT_EQ(mText::Mid(u"abc", 2, 1) + mText::Mid(u"abc", 2, far) + mText::Mid(u"abc", 3), u"bbcc");
  EXPECT_EQ(mText::Mid(u"abc", far, far) + mText::Mid(u"abc", 0, 2), u"");
  EXPECT_EQ(mText::Left(u"abc", 9) + mText::Left(u"abc", -1), u"abc");
  EXPECT_EQ(mText::Right(u"abc", 2) + mText::Right(u"abc", 9) + mText::Right(u"abc", -1), u"bcabc");
}

TEST(mText, ReplaceAllTextKeepsItsHabits) {
  const char16_t *cases[][4] = {
      {u"a<BR>b<br>c", u"<br>", u"-", u"a-b-c"},
      {u"no hit  ", u"x", u"y", u"no hit  "},
      {u"x tail  ", u"x", u"y", u"y tail"},        // the blanks behind go
      {u"x   ", u"x", u"y  ", u"y  "},             // but not the replacement's own
      {u"aaaa", u"a", u"", u"aa"},                 // a removal passes over one character
      {u"bcc", u"bc", u"ab", u"aab"},              // the replacement's end is part of a hit
      {u"a\nb\n", u"\n", u"\r\n", u"a\r\nb\r\n"},  // but never without end
      {u"abc", u"", u"x", u"abc"}};
  for (const auto &[text, find, replacement, result] : cases) {
    EXPECT_EQ(mText::ReplaceAllText(text, find, replacement), result);
  }
}

TEST(mText, RoundsHalvesToTheEvenNeighbour) {
  const std::pair<double, qint64> cases[] = {
      {1.5, 2},    {2.5, 2},           {-0.5, 0},           {-1.5, -2},
      {-2.51, -3}, {1e300, INT64_MAX}, {-1e300, INT64_MIN}, {NAN, 0}};
  for (const auto &[number, rounded] : cases) EXPECT_EQ(mText::RoundToEven(number), rounded);
}
