#include "assistants/FramesetText.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "assistants/FramesetLayouts.h"

namespace {

// Rows 1 to 5, which tell themselves apart by their margin.
const FrameSourceTable fiveRows{{},
                                {.marginwidth = 1},
                                {.marginwidth = 2},
                                {.marginwidth = 3},
                                {.marginwidth = 4},
                                {.marginwidth = 5}};

// "s0", "s1" and so on.
QStringList Files(int count) {
  QStringList files;
  for (int slot = 0; slot < count; ++slot) files << QStringLiteral("s%1").arg(slot);
  return files;
}

// @ stands for the attributes of a frame as it comes.
QString Lines(std::initializer_list<const char *> lines) {
  QStringList list;
  for (const char *line : lines) list << QString::fromLatin1(line);
  return list.join(QStringLiteral("\r\n"))
      .replace(u'@', QStringLiteral("scrolling=yes frameborder=1 marginwidth=0 marginheight=0"));
}

TEST(FramesetTextTest, OneLayoutOfEachForm) {
  const FrameSourceTable plain(6);
  EXPECT_EQ(
      BuildFramesetText(0, {QStringLiteral("  Up per.html "), QString()}, plain),
      Lines({R"(    <FRAMESET rows="20%, 80%">)",
             R"(        <FRAME name="UpperFrame" src="Up per.html" @>)",
             R"(        <FRAME name="BottomFrame" src="" @>)", R"(    </FRAMESET>)",
             R"(    <NOFRAMES>)", R"(        <P>This frameset document contains: )",
             R"(        <UL>)", R"(            <LI><A href="Up per.html">Up per.html</A></LI> )",
             R"(            <LI><A href=""></A></LI>)", R"(        </UL> )",
             R"(    </NOFRAMES>)"}));
  EXPECT_EQ(
      BuildFramesetText(17, Files(3), plain),
      Lines({R"(    <FRAMESET cols="20%, 80%">)", R"(        <FRAME name="LeftFrame" src="s0" @>)",
             R"(        <FRAMESET rows="80%, 20%">)",
             R"(            <FRAME name="UpperFrame" src="s1" @>)",
             R"(            <FRAME name="BottomFrame" src="s2" @>)", R"(        </FRAMESET>)",
             R"(    </FRAMESET>)", R"(    <NOFRAMES> )",
             R"(        <P>This frameset document contains:)", R"(        <UL> )",
             R"(            <LI><A href="s0">s0</A></LI>)",
             R"(            <LI><A href="s1">s1</A></LI>)",
             R"(            <LI><A href="s0">s1</A></LI>)", R"(        </UL>)",
             R"(    </NOFRAMES>)"}));
  EXPECT_EQ(
      BuildFramesetText(7, Files(3), plain),
      Lines({R"(    <FRAMESET rows="20%, 80%">)", R"(        <FRAME name="UpperFrame" src="s0" @>)",
             R"(        <FRAMESET cols="20%, 80%">)",
             R"(            <FRAME name="LeftFrame" src="s1" @>)",
             R"(            <FRAME name="RightFrame" src="s2" @>)", R"(        </FRAMESET>)",
             R"(        <NOFRAMES>)", R"(            <P>This frameset document contains:)",
             R"(            <UL>)", R"(                <LI><A href="s0">s0</A>)",
             R"(                <LI><A href="s1">s1</A>)",
             R"(                <LI><A href="s2">s2</A>)", R"(            </UL>)",
             R"(        </NOFRAMES>)", R"(    </FRAMESET>)"}));
  EXPECT_EQ(BuildFramesetText(24, Files(4), plain).section(QStringLiteral("\r\n"), 9),
            Lines({R"(    </FRAMESET>)", R"(    <NOFRAMES> )",
                   R"(        <P>This frameset document contains:)", R"(        <UL> )",
                   R"(                <LI><A href="s0">s0</A>)",
                   R"(                <LI><A href="s1">s1</A>)",
                   R"(                <LI><A href="s2">s2</A>)",
                   R"(                <LI><A href="s3">s3</A>)", R"(        </UL>)",
                   R"(    </NOFRAMES>)"}));
}

TEST(FramesetTextTest, AttributesOfAFrame) {
  for (const auto &[attributes, text] : {
           std::pair{FrameAttributes{}, "scrolling=yes frameborder=1 marginwidth=0 marginheight=0"},
           {{1, 1, 1, -5, 32767},
            "scrolling=no frameborder=0 marginwidth=-5 marginheight=32767 noresize"},
           {{.scrolling = 2}, "scrolling=auto frameborder=1 marginwidth=0 marginheight=0"},
       }) {
    EXPECT_EQ(FrameAttributeText(attributes), QLatin1String(text));
  }
}

// The frames of a text in a shorthand: name, source slot, attribute row.
QString Structure(QString text) {
  const auto shorten = [&text](const char *pattern, const char *after) {
    text.replace(QRegularExpression(QString::fromLatin1(pattern)), QString::fromLatin1(after));
  };
  shorten("\r", "");
  shorten("\\s*<NOFRAMES>(.|\n)*</NOFRAMES>", "");
  shorten(" *<FRAME name=\"(.*)\" src=\"(.*)\" .*width=(.) .*", "\\1 \\2/a\\3");
  shorten(" *<FRAMESET (rows|cols)=\"(.*)\">\\s+", "\\1 \\2 ( ");
  shorten("\\s+</FRAMESET>", " )");
  shorten("\n", ", ");
  shorten("%, ", "/");
  shorten("%", "");
  return text;
}

// The slots that the entries of the list have as target and as text.
QString Entries(const QString &text) {
  static const QRegularExpression entry(QStringLiteral("<A href=\"s(.)\">s(.)</A>"));
  QStringList entries;
  for (const auto &match : entry.globalMatch(text)) {
    entries << match.captured(1) + u'/' + match.captured(2);
  }
  return entries.join(u' ');
}

char Form(const QString &text) {
  const bool closed = text.contains(QStringLiteral("</LI>"));
  if (text.contains(QStringLiteral("<NOFRAMES> "))) return closed ? 'B' : 'D';
  return closed ? 'A' : 'C';
}

QString Words(const std::vector<const char *> &words) {
  QStringList list;
  for (const char *word : words) list << QString::fromLatin1(word);
  return list.join(QStringLiteral(", "));
}

TEST(FramesetTextTest, AllLayouts) {
  struct Case {
    const char *structure, *slots, *tabs;
    char form;
    const char *entries;
  };
  const Case cases[]{
      {"rows 20/80 ( UpperFrame s0/a1, BottomFrame s1/a2 )", "Upper, Bottom", "Upper, Bottom", 'A',
       "0/0 1/1"},
      {"rows 20/60/20 ( UpperFrame s0/a1, MiddleFrame s1/a2, BottomFrame s2/a3 )",
       "Upper, Middle, Bottom", "Upper, Middle, Bottom", 'A', "0/0 1/1 2/2"},
      {"cols 80/20 ( LeftFrame s0/a2, RightFrame s1/a3 )", "Right, Left", "Right, Left", 'B',
       "0/0 1/0"},
      {"cols 20/80 ( LeftFrame s0/a2, RightFrame s1/a3 )", "Right, Left", "Right, Left", 'B',
       "0/0 1/1"},
      {"rows 80/20 ( UpperFrame s0/a1, BottomFrame s1/a2 )", "Upper, Bottom", "Upper, Bottom", 'A',
       "0/0 1/1"},
      {"rows 20/80 ( UpperFrame s0/a1, cols 80/20 ( LeftFrame s1/a2, RightFrame s2/a3 ) )",
       "Upper, Left, Right", "Upper, Left, Right", 'C', "0/0 1/1 2/2"},
      {"cols 20/60/20 ( LeftFrame s0/a1, MiddleFrame s1/a2, RightFrame s2/a3 )",
       "Left, Middle, Right", "Left, Middle, Right", 'B', "0/0 1/1 2/2"},
      {"rows 20/80 ( UpperFrame s0/a1, cols 20/80 ( LeftFrame s1/a2, RightFrame s2/a3 ) )",
       "Upper, Left, Right", "Upper, Left, Right", 'C', "0/0 1/1 2/2"},
      {"rows 80/20 ( cols 80/20 ( LeftFrame s0/a1, RightFrame s1/a2 ), UpperFrame s2/a3 )",
       "Left, Right, Bottom", "Left, Right, Bottom", 'C', "0/0 1/1 2/2"},
      {"rows 80/20 ( cols 20/80 ( LeftFrame s0/a1, RightFrame s1/a2 ), UpperFrame s2/a3 )",
       "Left, Right, Bottom", "Left, Right, Bottom", 'C', "0/0 1/1 2/2"},
      {"rows 20/80 ( UpperFrame s0/a1, cols 20/60/20 ( LeftFrame s1/a2, "
       "MiddleFrame s2/a3, RightFrame s3/a4 ) )",
       "Upper, Left, Middle, Right", "Upper, Left, Middle, Right", 'C', "0/0 1/1 2/2 3/3"},
      {"rows 80/20 ( cols 20/60/20 ( LeftFrame s0/a1, MiddleFrame s1/a2, "
       "RightFrame s2/a3 ), BottomFrame s3/a4 )",
       "Left, Middle, Right, Bottom", "Left, Middle, Right, Bottom", 'C', "0/0 1/1 2/2 3/3 4/4"},
      {"rows 20/60/20 ( UpperFrame s0/a1, cols 20/60/20 ( LeftFrame s1/a2, "
       "MiddleFrame s2/a3, RightFrame s3/a4 ), BottomFrame s4/a5 )",
       "Upper, Left, Middle, Right, Bottom", "Upper, Left, Middle, Right, Bottom", 'C',
       "0/0 1/1 2/2 3/3 4/0"},
      {"cols 20/60/20 ( LeftFrame s0/a1, rows 20/60/20 ( UpperFrame s1/a2, "
       "MiddleFrame s2/a3, BottomFrame s3/a4 ), RightFrame s4/a5 )",
       "Left, Upper, Middle, Bottom, Right", "Left, Upper, Middle, Bottom, Right", 'C',
       "0/0 1/1 2/2 3/3 4/4"},
      {"cols 20/80 ( RightFrame s0/a1, rows 20/80 ( UpperFrame s1/a2, BottomFrame s2/a3 ) )",
       "Left, Upper, Bottom", "Left, Upper, Bottom", 'B', "0/0 1/1 2/2"},
      {"cols 80/20 ( rows 20/80 ( UpperFrame s0/a1, BottomFrame s1/a2 ), RightFrame s2/a3 )",
       "Upper, Bottom, Right", "Upper, Bottom, Right", 'B', "0/0 1/1 2/2"},
      {"cols 20/60/20 ( LeftFrame s0/a1, rows 20/80 ( UpperFrame s1/a2, "
       "BottomFrame s2/a3 ), RightFrame s3/a4 )",
       "Left, Upper, Bottom, Right", "Left, Upper, Bottom, Right", 'C', "0/0 1/1 2/2 3/3"},
      {"cols 20/80 ( LeftFrame s0/a1, rows 80/20 ( UpperFrame s1/a2, BottomFrame s2/a3 ) )",
       "Left, Upper, Bottom", "Left, Upper, Bottom", 'B', "0/0 1/1 0/1"},
      {"cols 20/80 ( rows 80/20 ( UpperFrame s0/a1, BottomFrame s1/a2 ), LeftFrame s2/a3 )",
       "Upper, Bottom, Right", "Upper, Bottom, Right", 'B', "0/0 1/1 2/2"},
      {"cols 20/60/20 ( LeftFrame s0/a1, rows 80/20 ( UpperFrame s1/a2, "
       "BottomFrame s2/a3 ), RightFrame s3/a4 )",
       "Left, Upper, Bottom, Right", "Left, Upper, Bottom, Right", 'C', "0/0 1/1 2/2 3/3"},
      {"cols 20/80 ( LeftFrame s0/a1, rows 20/60/20 ( UpperFrame s1/a2, "
       "MiddleFrame s2/a3, BottomFrame s3/a4 ) )",
       "Left, Upper, Middle, Bottom", "Left, Upper, Middle, Bottom", 'D', "0/0 1/1 2/2 3/3"},
      {"cols 80/20 ( rows 20/60/20 ( UpperFrame s0/a1, MiddleFrame s1/a2, "
       "BottomFrame s2/a3 ), RightFrame s3/a1 )",
       "Upper, Middle, Bottom, Right", "Upper, Middle, Bottom, Right", 'D', "0/0 1/1 2/2 3/3"},
      {"rows 20/60/20 ( UpperFrame s0/a1, cols 20/80 ( LeftFrame s1/a2, "
       "RightFrame s2/a3 ), BottomFrame s3/a4 )",
       "Upper, Left, Right, Bottom", "Upper, Left, Right, Bottom", 'C', "0/0 1/1 2/2 3/3"},
      {"rows 20/60/20 ( UpperFrame s0/a1, cols 80/20 ( LeftFrame s1/a2, "
       "RightFrame s2/a3 ), BottomFrame s3/a4 )",
       "Upper, Left, Right, Bottom", "Upper, Left, Right, Bottom", 'C', "0/0 1/1 2/2 3/3"},
      {"rows 50/50 ( cols 50/50 ( UpperLeftFrame s0/a1, UpperRightFrame s1/a2 ), "
       "cols 50/50 ( BottomLeftFrame s2/a3, BottomRightFrame s3/a4 ) )",
       "Upper Left, Upper Right, Bottom Left, Bottom Right",
       "Left, Right, Bottom Left, Bottom Right", 'D', "0/0 1/1 2/2 3/3"},
      {"rows 100 ( MainFrame s0/a1 )", "Main", "Main Frame", 'A', "0/0"},
  };
  ASSERT_EQ(FramesetLayouts().size(), std::size(cases));
  for (int index = 0; index < int(std::size(cases)); ++index) {
    const auto &[structure, slots, tabs, form, entries] = cases[index];
    SCOPED_TRACE(index);
    EXPECT_EQ(Words(FramesetLayouts()[index].slots), QLatin1String(slots));
    EXPECT_EQ(Words(FramesetLayouts()[index].Tabs()), QLatin1String(tabs));
    const QString text = BuildFramesetText(index, Files(5), fiveRows);
    EXPECT_EQ(Structure(text), QLatin1String(structure));
    EXPECT_EQ(Entries(text), QLatin1String(entries));
    EXPECT_EQ(Form(text), form);
    // Three layouts ask for more than they have.
    const int own = int(FramesetLayouts()[index].slots.size());
    const QString real =
        BuildFramesetText(index, Files(own), {fiveRows.begin(), fiveRows.begin() + own + 1});
    EXPECT_EQ(real, index == 2 || index == 3 || index == 11 ? QString() : text);
  }
  EXPECT_EQ(BuildFramesetText(-1, Files(5), fiveRows), QString());
  EXPECT_EQ(BuildFramesetText(26, Files(5), fiveRows), QString());
}

}  // namespace
