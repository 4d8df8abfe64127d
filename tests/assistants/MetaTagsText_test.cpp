#include "assistants/MetaTagsText.h"

#include <gtest/gtest.h>

namespace {

const char *const lines[] = {
    R"(<meta name="author" content="a"b">)",
    R"(<meta name="description" content="a"b"> )",
    R"(<meta name="keywords" content="a"b">)",
    R"(<meta name="date" content="a"b">)",
    R"(<meta name="robots" content="a"b">)",
    R"(<meta name="charset" content="a"b">)",
    R"(<meta http-equiv="expires" content="a"b">)",
    R"(<meta http-equiv="refresh" content="a"b,%1 c">)",
    R"(<meta name="editor" content="a"b">)",
    R"(<meta http-equiv="Set-Cookie" cookievalue="a"b" ;expires="%1 c"; path=/">)",
};

TEST(MetaTagsTextTest, ALineForEachTickedRowInTheRowsOrder) {
  std::array<MetaTagsText::Entry, 10> entries;
  for (auto &entry : entries) entry = {false, QStringLiteral(" a\"b "), QStringLiteral(" %1 c ")};
  EXPECT_EQ(MetaTagsText::Block(entries), QString());
  QString all;
  for (size_t i = 0; i < entries.size(); ++i) {
    const QString line = QLatin1String(lines[i]) + QStringLiteral("\r\n");
    entries[i].ticked = true;
    EXPECT_EQ(MetaTagsText::Block(entries), line);
    entries[i].ticked = false;
    all += line;
  }
  for (auto &entry : entries) entry.ticked = true;
  EXPECT_EQ(MetaTagsText::Block(entries), all);
  entries = {};
  entries[7].ticked = entries[0].ticked = true;
  EXPECT_EQ(MetaTagsText::Block(entries),
            QStringLiteral("<meta name=\"author\" content=\"\">\r\n"
                           "<meta http-equiv=\"refresh\" content=\",\">\r\n"));
}

}  // namespace
