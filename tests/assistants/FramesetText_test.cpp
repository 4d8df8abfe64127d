#include "assistants/FramesetText.h"

#include <gtest/gtest.h>

#include "assistants/FramesetLayouts.h"

using Qt::StringLiterals::operator""_s;

/// The layout with files "s1" and so on, and rows that tell themselves apart by their margin.
static QString Build(int layout, int files = 5) {
  QStringList sources;
  FrameSourceTable table(1);
  for (int n = 1; n <= files; ++n) {
    sources << u" s%1  "_s.arg(n);
    table.push_back({.marginwidth = qint16(n)});
  }
  return BuildFramesetText(layout, sources, table);
}

/// A dot stands for four blanks, a bar for a line's end, @ and its row for the attributes of a
/// frame.
static QString Drawn(int layout) {
  return Build(layout)
      .replace(u"\r\n"_s, u"|"_s)
      .replace(u"    "_s, u"."_s)
      .replace(u"scrolling=yes frameborder=1 marginwidth="_s, u"@"_s)
      .remove(u" marginheight=0"_s);
}

TEST(FramesetTextTest, FramesThenTheListForOtherBrowsersInOneOfFourForms) {
  EXPECT_EQ(Drawn(7),
            uR"(.<FRAMESET rows="20%, 80%">|..<FRAME name="UpperFrame" src="s1" @1>|)"
            uR"(..<FRAMESET cols="20%, 80%">|...<FRAME name="LeftFrame" src="s2" @2>|)"
            uR"(...<FRAME name="RightFrame" src="s3" @3>|..</FRAMESET>|)"
            uR"(..<NOFRAMES>|...<P>This frameset document contains:|...<UL>|)"
            uR"(....<LI><A href="s1">s1</A>|....<LI><A href="s2">s2</A>|)"
            uR"(....<LI><A href="s3">s3</A>|...</UL>|..</NOFRAMES>|.</FRAMESET>)");
  const auto list = [](int layout) { return Drawn(layout).section(u"</FRAMESET>|"_s, -1); };
  EXPECT_EQ(list(0),
            uR"(.<NOFRAMES>|..<P>This frameset document contains: |..<UL>|)"
            uR"(...<LI><A href="s1">s1</A></LI> |...<LI><A href="s2">s2</A></LI>|)"
            uR"(..</UL> |.</NOFRAMES>)");
  EXPECT_EQ(list(3),
            uR"(.<NOFRAMES> |..<P>This frameset document contains:|..<UL> |)"
            uR"(...<LI><A href="s1">s1</A></LI>|...<LI><A href="s2">s2</A></LI>|)"
            uR"(..</UL>|.</NOFRAMES>)");
  EXPECT_EQ(list(24),
            uR"(.<NOFRAMES> |..<P>This frameset document contains:|..<UL> |)"
            uR"(....<LI><A href="s1">s1</A>|....<LI><A href="s2">s2</A>|)"
            uR"(....<LI><A href="s3">s3</A>|....<LI><A href="s4">s4</A>|..</UL>|.</NOFRAMES>)");
}

/// Frames by name and file; behind it what departs from the rule: the row if it isn't the file's
/// number, the file's word if it isn't the name.
static QString Shorthand(const FramePart &part, const FramesetLayout &layout) {
  if (part.kind == FramePart::Kind::Frame) {
    const QString word = QString::fromLatin1(layout.slots[size_t(part.slot)]).remove(u' ');
    const QString name = QString::fromLatin1(part.name);
    return name.chopped(5) + QString::number(part.slot + 1) +
           (part.row == part.slot + 1 ? QString() : u"/%1"_s.arg(part.row)) +
           (name == word + u"Frame"_s ? QString() : u'=' + word);
  }
  QStringList sizes, parts;
  for (const int percent : part.percents) sizes << QString::number(percent);
  for (const FramePart &inner : part.parts) parts << Shorthand(inner, layout);
  return (part.kind == FramePart::Kind::Rows ? u"r "_s : u"c "_s) + sizes.join(u'/') + u" ("_s +
         parts.join(u", "_s) + u')';
}

TEST(FramesetTextTest, AllLayouts) {
  const char16_t *const layouts[]{
      u"r 20/80 (Upper1, Bottom2) A",
      u"r 20/60/20 (Upper1, Middle2, Bottom3) A",
      u"c 80/20 (Left1/2=Right, Right2/3=Left) B 11 21 none",
      u"c 20/80 (Left1/2=Right, Right2/3=Left) B none",
      u"r 80/20 (Upper1, Bottom2) A",
      u"r 20/80 (Upper1, c 80/20 (Left2, Right3)) C",
      u"c 20/60/20 (Left1, Middle2, Right3) B",
      u"r 20/80 (Upper1, c 20/80 (Left2, Right3)) C",
      u"r 80/20 (c 80/20 (Left1, Right2), Upper3=Bottom) C",
      u"r 80/20 (c 20/80 (Left1, Right2), Upper3=Bottom) C",
      u"r 20/80 (Upper1, c 20/60/20 (Left2, Middle3, Right4)) C",
      u"r 80/20 (c 20/60/20 (Left1, Middle2, Right3), Bottom4) C 11 22 33 44 55 none",
      u"r 20/60/20 (Upper1, c 20/60/20 (Left2, Middle3, Right4), Bottom5) C 11 22 33 44 51",
      u"c 20/60/20 (Left1, r 20/60/20 (Upper2, Middle3, Bottom4), Right5) C",
      u"c 20/80 (Right1=Left, r 20/80 (Upper2, Bottom3)) B",
      u"c 80/20 (r 20/80 (Upper1, Bottom2), Right3) B",
      u"c 20/60/20 (Left1, r 20/80 (Upper2, Bottom3), Right4) C",
      u"c 20/80 (Left1, r 80/20 (Upper2, Bottom3)) B 11 22 12",
      u"c 20/80 (r 80/20 (Upper1, Bottom2), Left3=Right) B",
      u"c 20/60/20 (Left1, r 80/20 (Upper2, Bottom3), Right4) C",
      u"c 20/80 (Left1, r 20/60/20 (Upper2, Middle3, Bottom4)) D",
      u"c 80/20 (r 20/60/20 (Upper1, Middle2, Bottom3), Right4/1) D",
      u"r 20/60/20 (Upper1, c 20/80 (Left2, Right3), Bottom4) C",
      u"r 20/60/20 (Upper1, c 80/20 (Left2, Right3), Bottom4) C",
      u"r 50/50 (c 50/50 (UpperLeft1, UpperRight2), c 50/50 (BottomLeft3, BottomRight4)) D",
      u"r 100 (Main1) A",
  };
  ASSERT_EQ(FramesetLayouts().size(), std::size(layouts));
  for (int i = 0; i < int(std::size(layouts)); ++i) {
    const FramesetLayout &layout = FramesetLayouts()[size_t(i)];
    QString shorthand = Shorthand(layout.division, layout) + u' ' + u"ABCD"_s[int(layout.noFrames)];
    for (const auto &[target, text] : layout.odd.entries) {
      shorthand += u" %1%2"_s.arg(target + 1).arg(text + 1);
    }
    if (Build(i, int(layout.slots.size())).isEmpty()) shorthand += u" none"_s;
    EXPECT_EQ(shorthand, layouts[i]) << i;
  }
}
