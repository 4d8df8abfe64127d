#include "assistants/FormatText.h"

#include <gtest/gtest.h>

#include "assistants/ColourText.h"

namespace {

TEST(FormatTextTest, ButtonsWriteTheirPairs) {
  struct Case {
    int button;
    const char *opening, *closing;
  };
  for (const auto &[button, opening, closing] : {
           Case{1, "", ""},
           {2, "<b>", "</b>"},
           {5, "<strike>", "</strike>"},
           {6, "<p>", "</p>"},
           {9, "<p align=\"center\">", "</p>"},
           {10, "", ""},
       }) {
    EXPECT_EQ(FormatText::OfButton(button).opening, QLatin1String(opening)) << button;
    EXPECT_EQ(FormatText::OfButton(button).closing, QLatin1String(closing)) << button;
  }
}

TEST(FormatTextTest, FontSettings) {
  const QString font = QStringLiteral("<font face=\"A %1,Helvetica\"><font color=\"#FF0000\">");
  const QString name = QStringLiteral("A %1");
  const QString red = QStringLiteral("#FF0000");
  for (const int plain : {2, -1, 7}) {
    EXPECT_EQ(FormatText::OfFont(plain, name, red).opening, font);
    EXPECT_EQ(FormatText::OfFont(plain, name, red).closing, QStringLiteral("</font></font>&nbsp;"));
  }
  const char *const sizes[] = {"-2", "-1", "", "+1", "+2", "+3", "+4"};
  for (const int index : {0, 1, 3, 4, 5, 6}) {
    const FormatText text = FormatText::OfFont(index, name, red);
    EXPECT_EQ(text.opening,
              QStringLiteral("<font size=") + QLatin1String(sizes[index]) + u'>' + font);
    EXPECT_EQ(text.closing, QStringLiteral("</font></font></font>&nbsp;"));
  }
}

TEST(ColourTextTest, PartsBelowSixteenDifferByTheRule) {
  EXPECT_EQ(ColourText::ZeroBefore(5, 255, 10), QStringLiteral("05FF0A"));
  EXPECT_EQ(ColourText::ZeroBehind(5, 255, 10), QStringLiteral("50FFA0"));
  EXPECT_EQ(ColourText::ZeroBehind(15, 16, 0), QStringLiteral("F01000"));
}

}  // namespace
