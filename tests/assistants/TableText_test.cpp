#include "assistants/TableText.h"

#include <gtest/gtest.h>

namespace {

bool Always() {
  return true;
}

QString Head(const TableText &table) {
  const QString text = table.Build(Always).value();
  return text.first(text.indexOf(u'>') + 1);
}

TEST(TableTextTest, RowsAndColumns) {
  TableText table;
  table.rows = 1;
  table.cols = 1;
  EXPECT_EQ(table.Build(Always),
            QStringLiteral("<table >\r\n\t<tr>\r\n\t\t<td>\r\n\t\t</td>\r\n\t</tr>\r\n</table>"));
  table.cols = 2;
  table.rows = 2;
  const QString row =
      QStringLiteral("\t<tr>\r\n\t\t<td>\r\n\t\t</td>\r\n\t\t<td>\r\n\t\t</td>\r\n\t</tr>\r\n");
  EXPECT_EQ(table.Build(Always),
            QStringLiteral("<table >\r\n") + row + row + QStringLiteral("</table>"));
  table.rows = table.cols = 200;
  int cells = 0;
  EXPECT_EQ(table.Build([&cells] { return ++cells > 0; })->size(), 683018);
  EXPECT_EQ(cells, 40000);
}

TEST(TableTextTest, EndsWhenItIsToldTo) {
  int cells = 0;
  EXPECT_EQ(TableText().Build([&cells] { return ++cells < 3; }), std::nullopt);
  EXPECT_EQ(cells, 3);
}

TEST(TableTextTest, MeasuresAreTheNumbersOfTheirBoxes) {
  struct Case {
    const char16_t *number;
    bool percent;
    const char *head;
  };
  for (const auto &[number, percent, head] : {
           Case{u"50", true, "<table  Width=\"50%\" Height=\"50%\">"},
           {u"50", false, "<table  Width=\"50\" Height=\"50\">"},
           {u"", false, "<table  Width=\"0\" Height=\"0\">"},
           {u"wide", true, "<table  Width=\"0%\" Height=\"0%\">"},
           {u" 12.50px\"", false, "<table  Width=\"12.5\" Height=\"12.5\">"},
           {u".5", false, "<table  Width=\"0.5\" Height=\"0.5\">"},
           {u"-3", false, "<table  Width=\"-3\" Height=\"-3\">"},
           {u"1234567890123456789012345678901234567890", false,
            "<table  Width=\"1.23456789012346E+39\" Height=\"1.23456789012346E+39\">"},
       }) {
    TableText table;
    table.height = table.width = {QString::fromUtf16(number), percent};
    EXPECT_EQ(Head(table), QLatin1String(head));
  }
}

TEST(TableTextTest, FramesAndRulesByTheirCaptions) {
  const auto heads = [](std::span<const TableText::Choice> choices, int TableText::*choice) {
    QString lines;
    TableText table;
    for (; table.*choice < int(choices.size()); ++(table.*choice)) {
      lines += QLatin1String(choices[size_t(table.*choice)].caption) + Head(table).sliced(6) + u' ';
    }
    return lines;
  };
  EXPECT_EQ(
      heads(TableText::Frames(), &TableText::frame),
      QStringLiteral("None > void  Border Frame=\"void\"> above  Border Frame=\"above\"> "
                     "below  Border Frame=\"below\"> horicontal sides  Border Frame=\"hsides\"> "
                     "vertical sides  Border Frame=\"vsides\"> left hand side  "
                     "Border Frame=\"lhs\"> right hand side  Border Frame=\"rhs\"> "));
  EXPECT_EQ(heads(TableText::Rules(), &TableText::rules),
            QStringLiteral("None > rows  border rules=\"rows\"> cols  border rules=\"cols\"> "
                           "groups  border rules=\"groups\"> all  border rules=\"all\"> "));
}

TEST(TableTextTest, AllOptionsKeepTheirOrder) {
  TableText table;
  table.background = QStringLiteral(" 05%1FF ");
  table.width = {QStringLiteral("100"), true};
  table.height = {QStringLiteral("20"), false};
  table.border = 3;
  table.cellspacing = 4;
  table.frame = 1;
  table.rules = 4;
  EXPECT_EQ(Head(table), QStringLiteral("<table  bgcolor=\"#05%1FF\" Width=\"100%\" Height=\"20\" "
                                        "Border=\"3\" Cellspacing=\"4\" Border Frame=\"void\" "
                                        "border rules=\"all\">"));
}

}  // namespace
