#include "assistants/SpecialCharacters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>

#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

TEST(SpecialCharactersTest, LinesAreCutAtTheirCodes) {
  QString cut;
  for (const char16_t *line :
       {u"&lt; &#60;", u"&lt;&#60;", u"&amp; no code", u"no semicolon &#1", u";", u""}) {
    const auto codes = SpecialCharacters::Cut(QString::fromUtf16(line));
    cut += codes.html + u'+' + codes.unicode + u' ';
  }
  EXPECT_EQ(cut, u"&lt;+&#60; &lt;+&#60; &amp;+ + ;+ + ");
}

TEST(SpecialCharactersTest, AShortOrMissingFileGivesNothing) {
  QTemporaryDir folder;
  const QString path = folder.filePath(u"sc.dat"_s);
  EXPECT_FALSE(SpecialCharacters::Read(path, 1));
  EXPECT_TRUE(SpecialCharacters::Pictures(path).isEmpty());
  PutFile(path, "&lt; &#60;\r\nbroken\n&x; &#99999999999;\r\n&euro; &#8364;");
  EXPECT_EQ(SpecialCharacters::Read(path, 4)->unicode, u"&#8364;");
  EXPECT_FALSE(SpecialCharacters::Read(path, 5) || SpecialCharacters::Read(path, 0));
  EXPECT_EQ(SpecialCharacters::Pictures(path).join(u'|'), u"<|||\u20ac");
}

TEST(SpecialCharactersTest, TheDeliveredOnesAreDifferentCharactersThatHtmlDeclares) {
  const QString path = u"" TAGWRIGHT_DATA_DIR "/sc.dat"_s;
  QStringList pictures = SpecialCharacters::Pictures(path);
  EXPECT_EQ(pictures.removeDuplicates(), 0);
  EXPECT_EQ(pictures.size(), SpecialCharacters::Count);
  QString entities;
  for (const char *name : {"lat1", "symbol", "special"}) {
    entities += QString::fromLatin1(
        FileBytes(u"" TAGWRIGHT_DTD_FOLDER "/HTML%1.ent"_s.arg(QLatin1String(name))));
  }
  for (int n = 1; n <= SpecialCharacters::Count; ++n) {
    const auto codes = SpecialCharacters::Read(path, n).value();
    const QRegularExpression declared(
        u"<!ENTITY\\s+%1\\s+CDATA\\s+\"%2\""_s.arg(codes.html.sliced(1).chopped(1), codes.unicode));
    EXPECT_TRUE(entities.contains(declared)) << qPrintable(codes.html);
  }
}
