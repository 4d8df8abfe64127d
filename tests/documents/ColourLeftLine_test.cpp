#include "documents/ColourLeftLine.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QStringList>

namespace {

// A text whose colours are letters: r, g, b and y for the levels, k for black, "." for what the
// pass did not touch.
class LetteredText : public ColourableText {
 public:
  explicit LetteredText(const QStringList &lines)
      : lines_(lines), text_(lines.join(QStringLiteral("\r\n"))), seen(text_.size(), u'.') {}

  qsizetype LineIndex(int line) const override {
    if (line < 0 || line >= lines_.size()) return -1;
    qsizetype start = 0;
    for (int i = 0; i < line; ++i) start += lines_[i].size() + 2;
    return start;
  }
  qsizetype LineLength(qsizetype position) const override {
    return lines_[GetLineFromChar(position)].size();
  }
  QString Piece(qsizetype start, qsizetype length) const override {
    return text_.mid(start, length);
  }
  int GetLineFromChar(qsizetype position) const override {
    return int(text_.left(position).count(u'\n'));
  }
  int LineOf(Landmarks::Landmark landmark) const override {
    const char *tags[] = {"<head", "</head", "<body", "</body"};
    const auto found = text_.indexOf(QLatin1String(tags[landmark]), 0, Qt::CaseInsensitive);
    return GetLineFromChar(std::max<qsizetype>(found, 0));
  }
  void SetColour(qsizetype start, qsizetype length, quint32 colour) override {
    const QHash<quint32, char16_t> letters{
        {0, u'k'}, {0x800000, u'r'}, {0x008000, u'g'}, {0x000080, u'b'}, {0x808080, u'y'}};
    ASSERT_LE(start + length, text_.size());
    for (qsizetype i = start; i < start + length; ++i) seen[i] = letters.value(colour, u'?');
  }
  bool Pump() override { return --pumpsUntilChange != 0; }

  QString Line(int line) const { return seen.mid(LineIndex(line), lines_[line].size()); }

  QStringList lines_;
  QString text_;
  QString seen;
  int pumpsUntilChange = -1;
};

struct Case {
  const char *what;
  int caretLine;
  int formerLine;
  const char *switches;  ///< of borders, header, body
  int line;              ///< the one to look at
  const char *expected;
};

TEST(ColourLeftLine, ColoursByLineAndSwitches) {
  const QStringList page{
      QStringLiteral("<html>"),                  // 0
      QStringLiteral("<head><TITLE>t</TITLE>"),  // 1
      QStringLiteral("<meta>"),                  // 2
      QStringLiteral("</head>"),                 // 3
      QStringLiteral("<BODY>"),                  // 4
      QStringLiteral("<b>x</b> a > b < c"),      // 5
      QStringLiteral("x <a <b> <i"),             // 6
      QStringLiteral("no tags"),                 // 7
      QStringLiteral("<u>"),
      QStringLiteral("</body><p>"),  // 8, 9
      QStringLiteral("</html>"),     // 10
  };
  const Case cases[] = {
      {"borders without header", 9, 5, "100", 5, ".................."},
      {"borders without header, body on", 9, 5, "101", 5, ".................."},
      {"header only: body is grey", 9, 5, "010", 5, ".yy..yyy.........."},
      {"body", 9, 5, "001", 5, ".bb..bbb.........."},
      {"header only: head", 9, 2, "010", 2, ".ggggg"},
      {"outside head and body, header only", 9, 10, "010", 10, ".kkkkkk"},
      {"outside, borders", 9, 10, "110", 10, ".rrrrrr"},
      {"body replaces the head's three lines", 9, 4, "111", 4, ".bbbbb"},
      {"head and the line behind, body off", 9, 3, "010", 3, ".gggggg"},
      {"line 0 is the caret's own, one character late", 0, 5, "110", 0, ".rrrrr"},
      {"line 1 is the caret's own", 1, 5, "010", 1, ".ggggg.gggggg..ggggggg"},
      {"the span goes to the first >", 9, 6, "001", 6, "...bbbbb..."},
      {"no tag", 9, 7, "111", 7, "......."},
      {"the body's last line", 10, 9, "001", 9, ".bbbbbb.bb"},
      {"a stale line beyond the text", 9, 99, "111", 5, ".................."},
  };
  for (const Case &row : cases) {
    LetteredText text(page);
    const auto on = [&row](int i) { return row.switches[i] == '1'; };
    ColourLeftLine(text, row.caretLine, row.formerLine,
                   {.borders = on(0), .header = on(1), .body = on(2)});
    EXPECT_EQ(text.Line(row.line), QLatin1String(row.expected)) << row.what;
    text.seen.replace(text.LineIndex(row.line), qstrlen(row.expected),
                      QString(qstrlen(row.expected), u'.'));
    EXPECT_EQ(text.seen.count(u'.'), text.seen.size()) << row.what << ": no other line";
  }
}

TEST(ColourLeftLine, WithoutHeadAndBodyTheFirstLinesCountForBoth) {
  LetteredText text({QStringLiteral("<a>"), QStringLiteral("<b>"), QStringLiteral("<c>"),
                     QStringLiteral("<d>"), QStringLiteral("<e>")});
  for (const int line : {0, 1, 3, 4}) {
    ColourLeftLine(text, std::max(line, line < 2 ? 0 : 2), line, {.borders = true, .header = true});
  }
  EXPECT_EQ(text.seen, QStringLiteral(".yy...gg........gg...rr"));
}

TEST(ColourLeftLine, EndsWhereTheTextChangesUnderIt) {
  LetteredText text({QStringLiteral("<a><b><c>")});
  text.pumpsUntilChange = 2;
  ColourLeftLine(text, 0, 0, {.header = true});
  EXPECT_EQ(text.seen, QStringLiteral(".yy.yy..."));
}

}  // namespace
