#include "frame/LanguageTexts.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shared/Files.h"

namespace {

using Direction = LanguageTexts::Direction;

QByteArray Item(const char *german, const char *english) {
  return QByteArray(german).leftJustified(2000) + QByteArray(english).leftJustified(2000) +
         QByteArray(2, '\0');
}

class LanguageTextsTest : public testing::Test {
 protected:
  QString Shown() const {
    return QStringLiteral("%1/%2 %3|%4")
        .arg(texts.Number())
        .arg(texts.Count())
        .arg(texts.german, texts.english);
  }
  QString Go(Direction direction) {
    texts.Go(direction);
    return Shown();
  }

  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("lang.dat"));
  LanguageTexts texts{path};
};

TEST_F(LanguageTextsTest, EachStepStoresAndMovesInsideTheCount) {
  PutFile(path, Item("ja", "yes") + Item("nein", "no"));
  EXPECT_EQ(Go(Direction::Next), QStringLiteral("1/2 ja|yes"));
  EXPECT_EQ(Go(Direction::Previous), QStringLiteral("1/2 ja|yes"));
  texts.german = QStringLiteral("  doch ä→ ");
  EXPECT_EQ(Go(Direction::Next), QStringLiteral("2/2 nein|no"));
  texts.english = QString(2001, u'n');
  EXPECT_EQ(Go(Direction::Next), QStringLiteral("2/2 nein|") + QString(2000, u'n'));
  EXPECT_EQ(Go(Direction::Previous), QStringLiteral("1/2 doch ä?|yes"));
  EXPECT_EQ(FileBytes(path),
            Item("doch \xE4?", "yes") + Item("nein", QByteArray(2000, 'n').constData()));
}

TEST_F(LanguageTextsTest, AMissingEmptyOrCutFile) {
  EXPECT_EQ(Go(Direction::Next), QStringLiteral("1/0 |"));
  EXPECT_FALSE(QFile::exists(path)) << "nothing to store yet";
  texts.german = QStringLiteral("neu");
  EXPECT_EQ(Go(Direction::Previous), QStringLiteral("1/1 neu|"));
  const std::pair<int, const char *> cuts[] = {
      {0, "1/0 |"}, {1500, "1/0 ja|"}, {3000, "1/1 ja|yes"}, {4000, "1/1 ja|yes"}};
  for (const auto &[size, shown] : cuts) {
    PutFile(path, Item("ja", "yes").left(size));
    texts = LanguageTexts(path);
    EXPECT_EQ(Go(Direction::Next), QLatin1String(shown)) << size;
    texts.english = QStringLiteral("yes");
    Go(Direction::Next);
    EXPECT_EQ(QFileInfo(path).size(), 4002);
    EXPECT_EQ(Shown(), size ? QStringLiteral("1/1 ja|yes") : QStringLiteral("1/1 |yes"));
  }
}

}  // namespace
