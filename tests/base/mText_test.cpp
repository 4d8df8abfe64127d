#include "base/mText.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(mText, ValReadsTheLeadingNumber) {
  const std::pair<const char *, double> cases[] = {
      {" 1 2 px", 12},     {"- 5", -5},        {"-.5x", -0.5},     {"1\t2", 1},
      {"1d-2", 0.01},      {"2E+", 2},         {"1E999", 0},       {"& H 1 g", 1},
      {"&hffff", -1},      {"&H0FFFF", 65535}, {"&HFFFFFFFF", -1}, {"&o177777", -1},
      {"&O200000", 65536}, {"--7", 0},         {"&H100000000", 0}};
  for (const auto &[text, value] : cases) EXPECT_EQ(mText::Val(QString(text)), value) << text;
}

TEST(mText, NumbersAreWrittenAlikeInEveryLocale) {
  QString written;
  for (const double number : {-0.0, 3.0, -0.5, 0.1 + 0.2, 2.0 / 3, 1200.0, 123456789012345.0,
                              999999999999999.9, -1.5e300, 2.5e-16, 1e-15, double(INFINITY)}) {
    written += mText::Str(number);
  }
  EXPECT_EQ(written,
            " 0 3-0.5 0.3 0.666666666666667 1200 123456789012345 1E+15-1.5E+300 2.5E-16"
            " 0.000000000000001 0");
}

TEST(mText, PositionsCountFromOneAndPiecesEndWhereTheTextEnds) {
  EXPECT_EQ(mText::InStr(4, u"abCabc", u"c"), 6);
  EXPECT_EQ(mText::InStr(0, u"abc", u"a") + mText::InStr(5, u"abc", u""), 0) << "out of range";
  EXPECT_EQ(mText::Mid(u"abc", 2, 1) + mText::Mid(u"abc", 2, INT64_MAX), "bbc");
  EXPECT_EQ(mText::Mid(u"abc", INT64_MAX) + mText::Mid(u"abc", 0, 2) + mText::Left(u"abc", -1), "");
  EXPECT_EQ(mText::Left(u"abc", 9) + mText::Right(u"abc", 2) + mText::Right(u"abc", -1), "abcbc");
  EXPECT_EQ(mText::Trim(u"  \t\u00A0 x\u00A0\r\n ") + mText::Trim(u"  "), u"\t\u00A0 x\u00A0\r\n");
}

TEST(mText, ReplaceAllTextKeepsItsHabits) {
  const char *cases[][4] = {{"a<BR>b<br>c  ", "<br>", "-", "a-b-c"},  // the blanks behind go
                            {"no hit  ", "x", "y", "no hit  "},
                            {"x   ", "x", "y  ", "y  "},  // but not the replacement's own
                            {"aaaa", "a", "", "aa"},      // a removal passes over one character
                            {"bcc", "bc", "ab", "aab"},   // its end is part of a hit
                            {"a\n\n", "\n", "\r\n", "a\r\n\r\n"},  // but never without end
                            {"abc", "", "x", "abc"}};
  for (const auto &[text, find, replacement, result] : cases) {
    EXPECT_EQ(mText::ReplaceAllText(QString(text), QString(find), QString(replacement)), result);
  }
}
