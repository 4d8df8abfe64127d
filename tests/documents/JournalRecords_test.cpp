#include "documents/JournalRecords.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QMap>

using JournalRecords::Edit, JournalRecords::OfEdit;

const QByteArray head =
    JournalRecords::Heading() + JournalRecords::OfCaption("/a page \u2192.html");

std::optional<JournalRecords::Document> Read(QByteArray log) {
  QBuffer device(&log);
  device.open(QIODevice::ReadOnly);
  return JournalRecords::Read(device);
}

TEST(JournalRecords, ALogCutOrDamagedAnywhereSaysWhatCameBefore) {
  QByteArray log = head;
  QMap<qsizetype, QString> texts{{log.size(), QString()}};  // by the log's length
  for (const Edit &edit :
       {Edit{0, 0, "one\ntwo"}, Edit{7, 0, QStringLiteral("\u20AC\u00A0\u0081\0")}, Edit{2, 3, {}},
        Edit{0, 1, "<b>"}}) {
    log += OfEdit(edit);
    texts[log.size()] = QString(texts.last()).replace(edit.position, edit.removed, edit.text);
  }
  for (qsizetype place = 0; place <= log.size(); ++place) {
    QByteArray damaged = log + "x";
    damaged[place] = char(damaged[place] ^ 0x10);
    const auto behind = texts.upperBound(place);
    for (const QByteArray &read : {log.left(place), damaged}) {
      const auto document = Read(read);
      ASSERT_EQ(document.has_value(), behind != texts.cbegin()) << place;
      if (!document) continue;
      EXPECT_EQ(document->caption + document->text, "/a page \u2192.html" + *std::prev(behind));
      EXPECT_EQ(document->whole, read.size() == place && texts.contains(place)) << place;
    }
  }
  EXPECT_EQ(Read(log + JournalRecords::OfCaption("b"))->caption, "b");
}

TEST(JournalRecords, EditsThatTouchAreOneUpToItsLongestText) {
  Edit typed{5, 0, "a"};
  EXPECT_FALSE(JournalRecords::Join(typed, {6, 0, QString(JournalRecords::LongestText, 'x')}));
  EXPECT_TRUE(JournalRecords::Join(typed, {4, 3, "bc"}));
  EXPECT_TRUE(typed.position == 4 && typed.removed == 2 && typed.text == "bc");
}
