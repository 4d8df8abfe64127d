#include "assistants/ListText.h"

#include <gtest/gtest.h>

namespace {

const QString item = QStringLiteral("\t<li>\r\n\t</li>\r\n");

ListText Items(int kind, const QString &number) {
  ListText list;
  list.kind = kind;
  list.noOfItems = number;
  return list;
}

TEST(ListTextTest, HeadsItemsAndEnds) {
  const QString definition = QStringLiteral(
      "\t<dt>##Insert Definition Term##\r\n\t\t<dd>##Insert Definition Description##\r\n");
  struct Case {
    int kind;
    const char *head;
    const QString &item;
    const char *end;
  };
  for (const auto &[kind, head, oneItem, end] : {
           Case{ListText::Unsorted, "<ul type=\"circle\">\r\n", item, "</ul>"},
           {ListText::Sorted, "<ol  compact  type=\"I\" start=\"0\">\r\n", item, "</ol>"},
           {ListText::Definitions, "<dl>\r\n", definition, "</dl>"},
           {ListText::Menu, "<menu>\r\n", item, "</menu>"},
           {ListText::Directory, "<dir>\r\n", item, "</dir>"},
       }) {
    ListText list = Items(kind, QStringLiteral("2"));
    list.compact = true;
    const QString first = QLatin1String(head);
    EXPECT_EQ(list.Build(), first + oneItem + oneItem + QLatin1String(end));
    list.noOfItems.clear();
    EXPECT_EQ(list.Build(), first + QLatin1String(end));
  }
}

TEST(ListTextTest, BulletsAndNumberings) {
  const char *const bullets[] = {"circle", "square", "disc"};
  ListText list;
  for (list.bulletType = 0; list.bulletType < 3; ++list.bulletType) {
    EXPECT_EQ(
        list.Build(),
        QStringLiteral("<ul type=\"%1\">\r\n</ul>").arg(QLatin1String(bullets[list.bulletType])));
  }
  struct Case {
    int style;
    bool compact;
    const char16_t *start;
    const char *head;
  };
  for (const auto &[style, compact, start, head] : {
           Case{0, false, u"1", "<ol  type=\"I\" start=\"1\">"},
           {1, true, u" 2 nd", "<ol  compact  type=\"i\" start=\"2\">"},
           {2, false, u"-4", "<ol  type=\"A\" start=\"-4\">"},
           {3, false, u"none", "<ol  type=\"a\" start=\"0\">"},
           {4, false, u"2.50", "<ol  start=\"2.5\">"},
           {4, true, u"3", "<ol  compact  start=\"3\">"},
       }) {
    list.kind = ListText::Sorted;
    list.numberingStyle = style;
    list.compact = compact;
    list.startValue = QString::fromUtf16(start);
    EXPECT_EQ(list.Build(), QLatin1String(head) + QStringLiteral("\r\n</ol>"));
  }
}

TEST(ListTextTest, TheNumberOfItemsHasSixteenBits) {
  struct Case {
    const char16_t *number;
    int items;
  };
  for (const auto &[number, items] : {
           Case{u"3 items", 3},
           {u"items", 0},
           {u"2.5", 2},
           {u"3.5", 4},
           {u"-0.5", 0},
           {u"-1", 0},
           {u"1e2", 100},
           {u"32767.4", 32767},
           {u"32767.5", 0},
           {u"65537", 0},
           {u"1234567890123456789012345678901234567890", 0},
           {u"1e999", 0},
       }) {
    EXPECT_EQ(Items(ListText::Menu, QString::fromUtf16(number)).Build().count(u"<li>"), items);
  }
}

}  // namespace
