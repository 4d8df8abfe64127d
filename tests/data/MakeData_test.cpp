#include <gtest/gtest.h>

#include <functional>

#include "PixelArt.h"
#include "SpecialCharacters.h"
#include "StencilLibrary.h"

using Qt::StringLiterals::operator""_s;

const auto Source = [](const QString &text) { return SourceText{u"art.txt"_s, text.split(u'\n')}; };
using Maker = std::function<void(const SourceText &)>;
const Maker pixels = PixelRecords;
const Maker stencils = [](const SourceText &source) { StencilLibrary().Add(source); };

/// Two cells side by side, seven points drawn of eight records.
const QString strip = u"size 48 24\ncells across\nbytes 96\ncolour k #010203\n"_s;
const QString entry = u"# A\nhelp\n```\n<a>\n```\n"_s;
const auto SubEntries = [](int count) {
  QString text;
  for (int n = 0; n < count; ++n) text += u"## B\nhelp %1\n```\nb\n```\n"_s.arg(n);
  return text;
};

TEST(MakeData, RefusesASourceThatBreaksARuleWithFileAndLine) {
  // Each with the beginning of its message.
  const std::tuple<Maker, QString, std::string> cases[] = {
      {pixels, strip + u"button\nkkkk\nkkkk"_s, "7: more than the 7 points of the file"},
      {SpecialCharacterLines, u"lt 60\nle 60"_s, "2: 60 comes twice"},
      {stencils, u"# A\nhelp\n"_s + SubEntries(27), "133: the parent"},
      {stencils, u"# A\n\n"_s + u"help \n"_s.repeated(151) + entry.mid(9), "3: 754 characters"},
      {stencils, entry + u"# \u2192"_s, "6: a character outside code page 1252"},
      {stencils, entry + u"# B\nHelp\n```\nb\n```"_s, "7: the help text of art.txt:2"},
      {stencils, u"# A\nhelp\n```\n<p>\n<dove>\n```"_s,
       "5: html 4.01 strict has no element <dove>"},
      {stencils, u"# A\nhelp\n```\n</B>\n<p\nid='>' font>\n```"_s, "6: <p> has no attribute font"},
  };
  for (const auto &[make, text, message] : cases) {
    try {
      make(Source(text));
      ADD_FAILURE() << "taken, instead of: " << message;
    } catch (const SourceError &error) {
      EXPECT_TRUE(std::string(error.what()).starts_with("art.txt:" + message)) << error.what();
    }
  }
}

TEST(MakeData, PutsAStencilTogetherFromItsSource) {
  StencilLibrary library;
  library.Add(
      Source(u"notes\n# A\nabout\n## B\ncaption: b\none\ntwo\n- item\nmore\n\nlast\n"
             u"```\n# <b>\n\n  </b>\n\n```\n### C\nc\n```\nc\n```\n## D\nd\n```\nd\n```"_s));
  library.Add(Source(entry));
  QString keys;
  for (const StencilRecord &record : library.records()) {
    keys += u"%1>%2 %3 "_s.arg(record.ParentKey.Trimmed(), record.Key.Trimmed(),
                               record.TextCaption.Trimmed());
  }
  EXPECT_EQ(keys, u"aa>aaaa A aaaa>aaaaaa b aaaaaa>aaaaaaaa C aaaa>aaaabb D aa>aabb A "_s);
  const StencilRecord &record = library.records()[1];
  EXPECT_EQ(record.Header.Trimmed(), u"B"_s);
  EXPECT_EQ(record.HtmlSource.Trimmed(), u"# <b>\r\n\r\n  </b>\r\n"_s);
  EXPECT_EQ(record.Description.Trimmed(), u"one two\r\n- item more\r\n\r\nlast"_s);
}
