#include <gtest/gtest.h>

#include "assistants/HorRuleText.h"
#include "assistants/ImageText.h"
#include "assistants/LinkSchemes.h"
#include "assistants/ListText.h"
#include "assistants/TableText.h"

using Qt::StringLiterals::operator""_s;

TEST(ImageTextTest, WritesWhatWasTypedAndTheMeasuresThatWereChosen) {
  using enum ImageText::Dimensions;
  const ImageText images[]{
      {.source = u"  a\"%1&.png "_s, .picture = {34, 12}, .alternativeText = u" %2 a "_s},
      {.bordered = true, .borderThick = u" thick \"1\" "_s, .alternativeText = u"  "_s},
      {.dimensions = Pixels, .height = u" 12.5 px "_s, .width = u"wide"_s},
      {.dimensions = Percent, .height = u"12.5"_s, .width = u"13.5"_s, .borderThick = u"5"_s},
  };
  QString tags;
  for (const ImageText &image : images) tags += image.Tag();
  EXPECT_EQ(tags,
            uR"(<img src="a"%1&.png" height="12" width="34" border=0 alt="%2 a">)"
            uR"(<img src="" height="0" width="0" border=thick "1">)"
            uR"(<img src="" height="12.5" width="0" border=0>)"
            uR"(<img src="" height="12%" width="14%" border=0>)");
}

TEST(HorRuleTextTest, WritesTheNumbersOfItsBoxes) {
  EXPECT_EQ((HorRuleText{0, false, u"2"_s, u"100"_s}.Tag() +
             HorRuleText{1, true, u" 2.50 "_s, u"50 percent"_s}.Tag() +
             HorRuleText{2, false, {}, u"wide"_s}.Tag()),
            uR"(<hr WIDTH="100%" Size=2 align=left>)"
            uR"(<hr WIDTH="50%" Size=2.5 align=center Noshade>)"
            uR"(<hr WIDTH="0%" Size=0 align=right>)");
}

TEST(LinkSchemesTest, NameTheMakersEndpoints) {
  QString written;
  const MakerEndpoints maker{u"web"_s, u"ftp"_s, u"go"_s, u"inner"_s, u"Inner"_s, u"box@x"_s};
  for (const QString &scheme : LinkSchemes(maker)) written += scheme;
  EXPECT_EQ(written,
            uR"(<a href="http://web">Be welcomed to Nimbara Works Websites</a>)"
            uR"(<a href="ftp://ftp">Nimbara Works FTP-Site</a>)"
            uR"(<a href="gopher://go:60/1">Link to Nimbara Works Gopher</a>)"
            uR"(<a href="telnet://inner">Link to Inner, Nimbara Works intranet server</a>)"
            uR"(<a href="emailto:box@x">Mail to the Nimbara Works Contact Team</a>)"
            uR"(<a href="file://localhost/C:/directory/start.html">Nimbara Works Start Page</a>)");
}

TEST(ListTextTest, HeadsItemsAndEnds) {
  ListText list;
  list.compact = true;
  list.noOfItems = u"2.5"_s;
  QString written;
  for (list.kind = 0; list.kind < 5; ++list.kind) written += list.Build();
  EXPECT_EQ(written.replace(u"\r\n"_s, u"|"_s),
            u"<ul type=\"circle\">|\t<li>|\t</li>|\t<li>|\t</li>|</ul>"
            u"<ol  compact  type=\"I\" start=\"0\">|\t<li>|\t</li>|\t<li>|\t</li>|</ol>"
            u"<dl>|\t<dt>##Insert Definition Term##|\t\t<dd>##Insert Definition Description##|"
            u"\t<dt>##Insert Definition Term##|\t\t<dd>##Insert Definition Description##|</dl>"
            u"<menu>|\t<li>|\t</li>|\t<li>|\t</li>|</menu>"
            u"<dir>|\t<li>|\t</li>|\t<li>|\t</li>|</dir>");
}

TEST(ListTextTest, BulletsAndNumberings) {
  ListText list;
  QString heads;
  for (; list.bulletType < 3; ++list.bulletType) heads += list.Build().chopped(7);
  list.kind = ListText::Sorted;
  list.startValue = u" -2.50 nd"_s;
  for (; list.numberingStyle < 5; ++list.numberingStyle) heads += list.Build().chopped(7);
  EXPECT_EQ(heads,
            uR"(<ul type="circle"><ul type="square"><ul type="disc"><ol  type="I" start="-2.5">)"
            uR"(<ol  type="i" start="-2.5"><ol  type="A" start="-2.5"><ol  type="a" start="-2.5">)"
            uR"(<ol  start="-2.5">)");
}

TEST(TableTextTest, FramesAndRulesByTheirCaptions) {
  QString choices;
  for (const auto &list : {TableText::Frames(), TableText::Rules()}) {
    for (const auto &[caption, value] : list)
      choices += QLatin1String(caption) + u'=' + QLatin1String(value) + u' ';
  }
  EXPECT_EQ(choices,
            u"None= void=void above=above below=below horicontal sides=hsides vertical "
            u"sides=vsides left hand side=lhs right hand side=rhs "
            u"None= rows=rows cols=cols groups=groups all=all ");
}
