#include "assistants/SpecialCharacters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
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

// Names and numbers of the entities that HTML 4.01 declares, as the lines of sc.dat.
QStringList DeclaredEntities() {
  QStringList lines;
  for (const char *name : {"lat1", "symbol", "special"}) {
    QFile file(QStringLiteral(TAGWRIGHT_DTD_FOLDER "/HTML%1.ent").arg(QLatin1String(name)));
    if (!file.open(QIODevice::ReadOnly)) return {};
    static const QRegularExpression entity(
        QStringLiteral("<!ENTITY\\s+(\\w+)\\s+CDATA\\s+\"(&#\\d+;)\""));
    auto found = entity.globalMatch(QString::fromLatin1(file.readAll()));
    while (found.hasNext()) {
      const auto declared = found.next();
      lines << QStringLiteral("&%1; %2").arg(declared.captured(1), declared.captured(2));
    }
  }
  return lines;
}

TEST(SpecialCharactersTest, TheDeliveredCharactersAreTheDeclaredOnesLessSeventeen) {
  const QStringList declared = DeclaredEntities();
  EXPECT_EQ(declared.size(), 252);
  qsizetype leftOut = 252;
  qsizetype bytes = 0;
  for (const QByteArray &line :
       FileBytes(QStringLiteral(TAGWRIGHT_DATA_DIR "/sc.dat")).split('\n')) {
    if (line.isEmpty()) continue;
    ASSERT_TRUE(line.endsWith('\r'));
    EXPECT_TRUE(declared.contains(QString::fromLatin1(line.chopped(1)))) << line.constData();
    bytes += line.size() + 1;
    --leftOut;
  }
  EXPECT_EQ(leftOut, 17);
  EXPECT_EQ(bytes, 3741);
}

}  // namespace
