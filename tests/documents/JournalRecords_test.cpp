#include <gtest/gtest.h>

#include <QBuffer>
#include <QRandomGenerator>
#include <algorithm>

#include "base/TextFile.h"
#include "documents/JournalRecords.h"

namespace {

using JournalRecords::Edit;

const QString caption = QStringLiteral("/home/a page \u2192.html");

std::optional<JournalRecords::Document> Read(QByteArray log) {
  QBuffer device(&log);
  device.open(QIODevice::ReadOnly);
  return JournalRecords::Read(device);
}

// Edits as a user makes them, the text after each, and the log of them.
struct History {
  explicit History(quint32 seed, int edits) {
    QRandomGenerator random(seed);
    const auto below = [&random](qsizetype bound) { return qsizetype(random.bounded(int(bound))); };
    const QString letters = QStringLiteral("ab\u20AC\u00A0\u0081\n\0");
    QString text;
    qsizetype place = 0;
    for (int i = 0; i < edits; ++i) {
      if (below(4) == 0) place = below(text.size() + 1);
      place = std::min(place, text.size());
      const qsizetype removed = std::min(below(3), text.size() - place);
      const Edit edit{place, removed, letters.left(below(letters.size() + 1))};
      text.replace(place, removed, edit.text);
      if (this->edits.empty() || !JournalRecords::Join(this->edits.back(), edit)) {
        this->edits.push_back(edit);
        texts << text;
      } else {
        texts.last() = text;
      }
      place += below(2) ? edit.text.size() : 0;
    }
    log = JournalRecords::Heading() + JournalRecords::OfCaption(caption);
    ends << log.size();
    for (const Edit &edit : this->edits) {
      log += JournalRecords::OfEdit(edit);
      ends << log.size();
    }
    texts.prepend({});
  }

  std::vector<Edit> edits;  // joined where they touch
  QStringList texts;        // after each of them, beginning with none
  QByteArray log;
  QList<qsizetype> ends;  // of the log after each
};

TEST(JournalRecords, EditsComeBackToTheLetterJoinedOrNot) {
  for (quint32 seed = 0; seed < 200; ++seed) {
    const History history(seed, 60);
    const auto document = Read(history.log);
    ASSERT_TRUE(document) << seed;
    EXPECT_EQ(document->caption, caption);
    EXPECT_EQ(document->text, history.texts.last()) << seed;
    EXPECT_TRUE(document->whole);
    EXPECT_LT(history.edits.size(), 60U);
  }
  // The last caption is the one that counts.
  EXPECT_EQ(Read(History(1, 5).log + JournalRecords::OfCaption(QStringLiteral("b")))->caption,
            QStringLiteral("b"));
}

TEST(JournalRecords, WhatIsTypedInOnePlaceIsOneEditOfBoundedLength) {
  Edit typed{5, 0, QStringLiteral("a")};
  EXPECT_FALSE(JournalRecords::Join(typed, {7, 0, QStringLiteral("x")}));
  EXPECT_FALSE(JournalRecords::Join(typed, {3, 1, {}}));
  EXPECT_TRUE(JournalRecords::Join(typed, {4, 3, QStringLiteral("bc")}));
  EXPECT_EQ(typed.position, 4);
  EXPECT_EQ(typed.removed, 2);
  EXPECT_EQ(typed.text, QStringLiteral("bc"));
  EXPECT_FALSE(JournalRecords::Join(typed, {5, 0, QString(JournalRecords::LongestText - 1, u'x')}));
  EXPECT_TRUE(JournalRecords::Join(typed, {5, 0, QString(JournalRecords::LongestText - 2, u'x')}));
}

TEST(JournalRecords, ALogCutOrDamagedAnywhereSaysWhatCameBefore) {
  const History history(7, 40);
  const auto soundBefore = [&history](qsizetype place) {
    return std::upper_bound(history.ends.begin(), history.ends.end(), place) -
           history.ends.begin() - 1;
  };
  const auto expect = [&](const QByteArray &log, qsizetype sound, bool whole) {
    const auto document = Read(log);
    ASSERT_EQ(document.has_value(), sound >= 0);
    if (!document) return;
    EXPECT_EQ(document->text, history.texts[sound]);
    EXPECT_EQ(document->whole, whole);
  };
  for (qsizetype place = 0; place < history.log.size(); ++place) {
    SCOPED_TRACE(place);
    expect(history.log.left(place), soundBefore(place), history.ends.contains(place));
    QByteArray damaged = history.log;
    damaged[place] = char(damaged[place] ^ 0x10);
    expect(damaged, soundBefore(place), false);
  }
  expect(history.log + "x", history.texts.size() - 1, false);
  expect(history.log + QByteArray(100'000, '\0'), history.texts.size() - 1, false);
}

TEST(JournalRecords, ForeignBytesAreNoJournal) {
  QRandomGenerator random(3);
  for (int i = 0; i < 2000; ++i) {
    QByteArray bytes(random.bounded(200), Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.generate()); });
    EXPECT_FALSE(Read(bytes));
    EXPECT_FALSE(Read(JournalRecords::Heading() + bytes));
  }
}

// What no journal holds, though its digests are right.
TEST(JournalRecords, ALogThatNoEditorCouldHaveWrittenEndsBeforeIt) {
  const QByteArray head = JournalRecords::Heading() + JournalRecords::OfCaption(caption);
  const QByteArray line =
      JournalRecords::OfEdit({0, 0, QString(JournalRecords::LongestText, u'x')});
  const auto beyond = Read(head + JournalRecords::OfEdit({0, 0, QStringLiteral("abc")}) +
                           JournalRecords::OfEdit({2, 2, {}}));
  ASSERT_TRUE(beyond);
  EXPECT_EQ(beyond->text, QStringLiteral("abc"));
  EXPECT_FALSE(beyond->whole);
  EXPECT_FALSE(Read(JournalRecords::Heading() + JournalRecords::OfEdit({0, 0, caption})))
      << "without a caption";
  EXPECT_FALSE(Read(head + line.repeated(TextFile::LongestLine / JournalRecords::LongestText + 1)));
  EXPECT_FALSE(Read(head + JournalRecords::OfEdit({0, 0, QString(2 << 20, u'\n')}))->whole);

  // A device without an end gives no more than its sound records.
  struct Endless : QIODevice {
    explicit Endless(const QByteArray &bytes) : start(bytes) { open(ReadOnly | Unbuffered); }
    bool atEnd() const override { return false; }
    qint64 readData(char *data, qint64 size) override {
      given += size;
      std::fill_n(data, size, '\0');
      const QByteArray now = start.left(size);
      std::copy(now.begin(), now.end(), data);
      start.remove(0, size);
      return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }
    QByteArray start;
    qint64 given = 0;
  } endless(head);
  const auto document = JournalRecords::Read(endless);
  ASSERT_TRUE(document);
  EXPECT_FALSE(document->whole);
  EXPECT_LT(endless.given, head.size() + 100);
}

}  // namespace
