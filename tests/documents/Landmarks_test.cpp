#include "documents/Landmarks.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <random>

TEST(Landmarks, StayTheFirstOccurrencesUnderAnyEdits) {
  Landmarks landmarks;
  QString text;
  const auto edit = [&](qsizetype position, qsizetype removed, const QString &added) {
    text.replace(position, removed, added);
    const auto reader = [&](int start, int length) {
      EXPECT_LE(start + length, text.size());
      return text.mid(start, length);
    };
    landmarks.Edited(int(position), int(removed), int(added.size()), int(text.size()), reader);
    const char *tags[] = {"<head", "</head", "<body", "</body"};
    for (int i = 0; i < Landmarks::Count; ++i) {
      ASSERT_EQ(landmarks.Position(Landmarks::Landmark(i)),
                text.indexOf(QString(tags[i]), 0, Qt::CaseInsensitive));
    }
  };
  std::mt19937 random(11);
  const auto upTo = [&random](qsizetype most) { return qsizetype(random() % quint64(most + 1)); };
  const QStringList pieces{"<head>", "</HEAD>", "<Body", "</body", "<",
                           "/",      "hea",     "dy x",  "<bo",    {}};
  for (int step = 0; step < 3000 && !testing::Test::HasFailure(); ++step) {
    const qsizetype position = upTo(text.size()), most = text.size() > 150 ? 60 : 3;
    edit(position, upTo(std::min(most, text.size() - position)), pieces[upTo(9)]);
  }
  for (int start = (1 << 16) - 6; start <= 1 << 16; ++start) {
    edit(0, text.size(), QString(start, ' ') + "<head></head>");
  }
}
