#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "StencilPage.h"
#include "base/mAnsi.h"
#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

namespace {

/// Has onsgmls look at files of a folder, each by itself, and tells what it says, a line each.
QByteArrayList Validate(const QString &folder, const QStringList &files) {
  QProcess validator;
  validator.setWorkingDirectory(folder);
  validator.setProcessChannelMode(QProcess::MergedChannels);
  validator.start(u"onsgmls"_s, QStringList{u"-B"_s, u"-s"_s, u"-E0"_s, u"-m"_s,
                                            QStringLiteral(TAGWRIGHT_SGML_CATALOG)} +
                                    files);
  if (!validator.waitForFinished(120'000)) return {validator.errorString().toUtf8()};
  QByteArrayList lines = validator.readAll().split('\n');
  lines.removeLast();
  for (QByteArray &line : lines) line = line.mid(line.indexOf(':') + 1);  // its own name
  return lines;
}

TEST(ValidMarkUp, EveryStencilIsValidWhereItMayStand) {
  const QTemporaryDir folder;
  // Among the pages is one with a fault, so that a validator that finds nothing finds nobody's
  // trust.
  QStringList pages{u"faulty"_s};
  const QString doctype = DoctypeLine(HtmlVersion::strict);
  PutFile(folder.filePath(pages[0]), doctype.toLatin1() + "\n<title>x</title><p><dove>");
  const QDir sources(QStringLiteral(TAGWRIGHT_STENCIL_SOURCES));
  for (const QString &file : sources.entryList({u"*.txt"_s})) {
    const SourceText source = ReadSource(sources.filePath(file));
    const std::vector<StencilEntry> entries = ReadStencilEntries(source);
    for (std::size_t n = 0; n < entries.size(); ++n) {
      if (entries[n].htmlLine == 0) continue;
      pages << u"%1-%2"_s.arg(file).arg(entries[n].htmlLine);
      PutFile(folder.filePath(pages.last()), mAnsi::ToAnsi(PageOf(source, entries, n).text));
    }
  }
  EXPECT_EQ(Validate(folder.path(), pages),
            QByteArrayList{"faulty:2:24:E: element \"DOVE\" undefined"});
}

TEST(ValidMarkUp, EveryHelpPageIsValidAsStrict) {
  const QDir help(QStringLiteral(TAGWRIGHT_DATA_DIR "/help"));
  const QStringList pages = help.entryList({u"*.htm"_s});
  EXPECT_GT(pages.size(), 5);
  for (const QString &page : pages) {
    const QString text = QString::fromLatin1(FileBytes(help.filePath(page)));
    EXPECT_EQ(HtmlVersionOf(text), HtmlVersion::strict) << qPrintable(page);
  }
  EXPECT_EQ(Validate(help.path(), pages), QByteArrayList());
}

}  // namespace
