#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

namespace {

TEST(HelpPagesTest, EveryLinkLeadsSomewhereAndEveryPageIsReached) {
  const QDir folder(QStringLiteral(TAGWRIGHT_DATA_DIR "/help"));
  const auto text = [&](const QString &page) {
    return QString::fromLatin1(FileBytes(folder.filePath(page)));
  };
  const QRegularExpression link(u"(?:href|src)=\"([^\"#]*)#?([^\"]*)\""_s);
  QStringList pages{u"index.htm"_s};
  for (qsizetype i = 0; i < pages.size(); ++i) {
    for (const auto &found : link.globalMatch(text(pages[i]))) {
      const QString file = found.captured(1).isEmpty() ? pages[i] : found.captured(1);
      EXPECT_TRUE(folder.exists(file)) << qPrintable(pages[i] + u' ' + file);
      const QString anchor = found.captured(2);
      EXPECT_TRUE(anchor.isEmpty() || text(file).contains(u" id=\"%1\""_s.arg(anchor)))
          << qPrintable(pages[i] + u' ' + found.captured());
      if (file.endsWith(u".htm") && !pages.contains(file)) pages << file;
    }
  }
  pages.sort();
  EXPECT_EQ(pages, folder.entryList({u"*.htm"_s}));
  EXPECT_GT(pages.size(), 5);
}

}  // namespace
