#include "assistants/SpecialCharacters.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shared/Files.h"

namespace {

TEST(SpecialCharactersTest, LinesAreCutAtTheirCodes) {
  struct Case {
    const char *line, *html, *unicode;
  };
  for (const auto &[line, html, unicode] : {
           Case{"&lt; &#60;", "&lt;", "&#60;"},
           {"&lt;&#60;", "&lt;", "&#60;"},
           {"&upsilon; &#965;", "&upsilon;", "&#965;"},
           {"&amp; no code", "&amp;", ""},
           {"no semicolon &#1", "", ""},
           {";", ";", ""},
           {"", "", ""},
       }) {
    const auto codes = SpecialCharacters::Cut(QLatin1String(line));
    EXPECT_EQ(codes.html, QLatin1String(html)) << line;
    EXPECT_EQ(codes.unicode, QLatin1String(unicode)) << line;
  }
}

TEST(SpecialCharactersTest, AShortOrMissingFileGivesNothing) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("sc.dat"));
  EXPECT_FALSE(SpecialCharacters::Read(path, 1));
  EXPECT_TRUE(SpecialCharacters::Pictures(path).isEmpty());
  PutFile(path, "&lt; &#60;\r\nbroken\n&x; &#99999999999;\r\n&euro; &#8364;");
  EXPECT_EQ(SpecialCharacters::Read(path, 4)->unicode, QStringLiteral("&#8364;"));
  EXPECT_FALSE(SpecialCharacters::Read(path, 5));
  EXPECT_FALSE(SpecialCharacters::Read(path, 0));
  EXPECT_EQ(SpecialCharacters::Pictures(path),
            (QStringList{QStringLiteral("<"), {}, {}, QStringLiteral("\u20ac")}));
}

TEST(SpecialCharactersTest, TheDeliveredFileHasAPictureForEachCell) {
  const QString path = QStringLiteral(TAGWRIGHT_DATA_DIR "/sc.dat");
  QStringList pictures = SpecialCharacters::Pictures(path);
  EXPECT_EQ(pictures.removeDuplicates(), 0);
  EXPECT_EQ(pictures.size(), SpecialCharacters::Count);
  EXPECT_FALSE(pictures.contains(QString()));
  EXPECT_FALSE(SpecialCharacters::Read(path, SpecialCharacters::Count + 1));
}

}  // namespace
