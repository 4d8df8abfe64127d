#include "assistants/MetaTagsText.h"

#include "base/mText.h"

const std::array<MetaTagsText::Row, 10> MetaTagsText::rows{{
    {.caption = "Document Author", .opening = R"(<meta name="author" content=")", .closing = "\">"},
    {.caption = "Description",
     .opening = R"(<meta name="description" content=")",
     .closing = "\"> "},
    {.caption = "Keywords", .opening = R"(<meta name="keywords" content=")", .closing = "\">"},
    {.caption = "Time Stamp", .opening = R"(<meta name="date" content=")", .closing = "\">"},
    {.caption = "Robots", .opening = R"(<meta name="robots" content=")", .closing = "\">"},
    {.caption = "Charset", .opening = R"(<meta name="charset" content=")", .closing = "\">"},
    {.caption = "Expire Date",
     .opening = R"(<meta http-equiv="expires" content=")",
     .closing = "\">"},
    {.caption = "Refresh",
     .opening = R"(<meta http-equiv="refresh" content=")",
     .closing = "\">",
     .between = ",",
     .firstLabel = "Seconds:",
     .secondLabel = "URL Destination:"},
    {.caption = "Editor:",
     .opening = R"(<meta name="editor" content=")",
     .closing = "\">",
     .preset = "nimbara works (tm) tagwright - hypertext authoring bench (c)"},
    {.caption = "Set a Cookie:",
     .opening = R"(<meta http-equiv="Set-Cookie" cookievalue=")",
     .closing = R"("; path=/">)",
     .between = R"(" ;expires=")",
     .firstLabel = "Cookie Value:",
     .secondLabel = "Expires:"},
}};

QString MetaTagsText::Block(const std::array<Entry, 10> &entries) {
  QString block;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (!entries[i].ticked) continue;
    block += QLatin1String(rows[i].opening) + mText::Trim(entries[i].first);
    if (rows[i].between) block += QLatin1String(rows[i].between) + mText::Trim(entries[i].second);
    block += QLatin1String(rows[i].closing) + QStringLiteral("\r\n");
  }
  return block;
}
