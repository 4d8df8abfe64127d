#include "frame/LanguageTexts.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

namespace {

QByteArray Item(const QByteArray &german, const QByteArray &english) {
  return german.leftJustified(2000) + english.leftJustified(2000) + QByteArray(2, '\0');
}

struct LanguageTextsTest : testing::Test {
  // Takes a step and tells what is shown then.
  QString Go(LanguageTexts::Direction direction = LanguageTexts::Direction::Next) {
    texts.Go(direction);
    return u"%1/%2 %3|%4"_s.arg(texts.Number()).arg(texts.Count()).arg(texts.german, texts.english);
  }
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"lang.dat"_s);
  LanguageTexts texts{path};
};

TEST_F(LanguageTextsTest, EachStepStoresAndMovesInsideTheCount) {
  PutFile(path, Item("ja", "yes") + Item("nein", "no"));
  EXPECT_EQ(Go(), u"1/2 ja|yes"_s);
  EXPECT_EQ(Go(LanguageTexts::Direction::Previous), u"1/2 ja|yes"_s);
  texts.german = u"  doch ä→ "_s;
  EXPECT_EQ(Go(), u"2/2 nein|no"_s);
  texts.english = QString(2001, u'n');
  EXPECT_EQ(Go(), u"2/2 nein|"_s + QString(2000, u'n'));
  EXPECT_EQ(FileBytes(path), Item("doch \xE4?", "yes") + Item("nein", QByteArray(2000, 'n')));
}

TEST_F(LanguageTextsTest, AMissingOrCutFile) {
  EXPECT_EQ(Go(), u"1/0 |"_s);
  EXPECT_FALSE(QFile::exists(path)) << "nothing to store yet";
  PutFile(path, Item("ja", "yes").left(1500));
  texts = LanguageTexts(path);
  EXPECT_EQ(Go(), u"1/0 ja|"_s);
  EXPECT_EQ(Go(), u"1/1 ja|"_s);
  EXPECT_EQ(QFile(path).size(), 4002);
}

}  // namespace
