#include <gtest/gtest.h>

#include "StencilPage.h"
#include "UnknownMarkUp.h"

using Qt::StringLiterals::operator""_s;

namespace {

HtmlDtd Dtd(HtmlVersion version) {
  return ReadHtmlDtd(QStringLiteral(TAGWRIGHT_DTD_FOLDER), version);
}

TEST(HtmlDtd, DeclaresWhatItsDocumentTypeHas) {
  const HtmlDtd strict = Dtd(HtmlVersion::strict);
  const HtmlDtd transitional = Dtd(HtmlVersion::transitional);
  const HtmlDtd frameset = Dtd(HtmlVersion::frameset);
  EXPECT_EQ(strict.attributes.size(), 77);
  EXPECT_EQ(transitional.attributes.size(), 89);
  EXPECT_EQ(frameset.attributes.size(), 91);
  for (const auto &[element, attributes] : strict.attributes.asKeyValueRange()) {
    EXPECT_TRUE(transitional.attributes.value(element).contains(attributes)) << qPrintable(element);
  }
  EXPECT_EQ(strict.attributes[u"script"_s],
            (QSet{u"charset"_s, u"type"_s, u"src"_s, u"defer"_s, u"event"_s, u"for"_s}));
  EXPECT_EQ(frameset.attributes[u"html"_s], (QSet{u"lang"_s, u"dir"_s, u"version"_s}));
  EXPECT_TRUE(strict.attributes[u"h6"_s].contains(u"onkeyup"_s)) << "out of an entity";
  EXPECT_FALSE(strict.attributes[u"h6"_s].contains(u"align"_s));
}

TEST(UnknownMarkUp, IsNotLookedForInCommentsScriptsAndStyleSheets) {
  const HtmlDtd dtd = Dtd(HtmlVersion::strict);
  const QString page =
      u"<!-- <x> --><SCRIPT type=\"a\">if (a<b) '<x>'</SCRIPT><style type=a>b>a {}</style><p "
      "title='<x>' id = b>1 < 2 &lt;<br></p>"_s;
  EXPECT_FALSE(FirstUnknownMarkUp(page, dtd));
  EXPECT_EQ(FirstUnknownMarkUp(page + u"<x>"_s, dtd)->position, page.size());
}

TEST(StencilPage, PutsEachSourceWhereItMayStand) {
  struct Case {
    QString text, page;  // of the last entry; "^" is where its source begins
  };
  const QString strict = DoctypeLine(HtmlVersion::strict) + u"\r\n"_s;
  const QString html = u"<html><head><title>x</title></head>"_s;
  for (const auto &[text, page] : {
           Case{u"# A\na\n```\nb</b>\n```"_s,
                strict + html + u"<body><div>^b</b></div></body></html>"_s},
           {u"# A\ntype: frameset\nwithin: <frameset>|</frameset>\na\n## B\nb\n```\nc\n```"_s,
            DoctypeLine(HtmlVersion::frameset) + u"\r\n"_s + html +
                u"<frameset>^c</frameset></html>"_s},
           {u"# A\nwithin: <head>|</head>\na\n## B\nwithin: |<html>\nb\n```\n<!DOCTYPE x>\n```"_s,
            u"^<!DOCTYPE x><html>"_s},
           {u"# A\na\n```\n<html></html>\n```"_s, strict + u"^<html></html>"_s},
           {u"# A\nwithin: <body>|\na\n```\n<p\nid=\"\" align=\"b\">c\n```\n## B\nb\n### C\nc\n"
            "```\nalign=\"d\"\n```"_s,
            strict + html + u"<body><p ^align=\"d\"\r\nid=\"\">c</html>"_s},
           {u"# A\na\n```\n<hr>\n```\n## B\nwithin: <p |>\nb\n```\nnowrap\n```"_s,
            strict + html + u"<body><div><p ^nowrap></div></body></html>"_s},
       }) {
    const SourceText source{u"a.txt"_s, text.split(u'\n')};
    const std::vector<StencilEntry> entries = ReadStencilEntries(source);
    StencilPage made = PageOf(source, entries, entries.size() - 1);
    EXPECT_EQ(made.text.insert(made.begin, u'^'), page);
  }
}

}  // namespace
