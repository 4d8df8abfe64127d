#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include "shared/Files.h"

namespace {

class HelpPagesTest : public testing::Test {
 protected:
  QString Page(const QString &name) const {
    return QString::fromLatin1(FileBytes(folder_.filePath(name)));
  }
  QStringList Matches(const QString &text, const char *pattern) const {
    QStringList found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext()) found << matches.next().captured(1);
    return found;
  }

  const QDir folder_{QStringLiteral(TAGWRIGHT_DATA_DIR "/help")};
};

TEST_F(HelpPagesTest, EveryLinkLeadsSomewhereAndEveryPageIsReached) {
  QStringList pages{QStringLiteral("index.htm")};
  QSet<QString> seen(pages.cbegin(), pages.cend());
  int links = 0;
  for (qsizetype i = 0; i < pages.size(); ++i) {
    for (const QString &link : Matches(Page(pages[i]), "(?:href|src)=\"([^\"]*)\"")) {
      ++links;
      const QString file = link.startsWith(u'#') ? pages[i] : link.section(u'#', 0, 0);
      EXPECT_TRUE(QFile::exists(folder_.filePath(file))) << qPrintable(pages[i] + u' ' + link);
      const QString anchor = link.section(u'#', 1);
      EXPECT_TRUE(anchor.isEmpty() ||
                  Page(file).contains(QStringLiteral(" id=\"") + anchor + QStringLiteral("\"")))
          << qPrintable(pages[i] + u' ' + link);
      if (file.endsWith(QStringLiteral(".htm")) && !seen.contains(file)) {
        seen << file;
        pages << file;
      }
    }
  }
  EXPECT_GT(links, 80);
  const QStringList all = folder_.entryList({QStringLiteral("*.htm")}, QDir::Files);
  EXPECT_EQ(seen, QSet<QString>(all.cbegin(), all.cend()));
}

// Browsers forgive a tag left open; the look of the rest of the page doesn't.
TEST_F(HelpPagesTest, EveryTagIsClosed) {
  for (const QString &name : folder_.entryList({QStringLiteral("*.htm")})) {
    QString page = Page(name);
    page.replace(QRegularExpression(QStringLiteral("<((?:meta|link|br|img|hr)\\b[^>]*)>")),
                 QStringLiteral("<\\1/>"));
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) reader.readNext();
    EXPECT_FALSE(reader.hasError())
        << qPrintable(name + u' ' + reader.errorString()) << " in line " << reader.lineNumber();
  }
}

}  // namespace
