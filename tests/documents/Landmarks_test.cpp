#include "documents/Landmarks.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <random>

namespace {

const QStringList tags{QStringLiteral("<head"), QStringLiteral("</head"), QStringLiteral("<body"),
                       QStringLiteral("</body")};

class LandmarksTest : public testing::Test {
 protected:
  void Edit(int position, int removed, const QString &added) {
    text.replace(position, removed, added);
    read = 0;
    landmarks.Edited(position, removed, int(added.size()), int(text.size()),
                     [this](int start, int length) {
                       EXPECT_LE(start + length, text.size());
                       read += length;
                       return text.mid(start, length);
                     });
    for (int landmark = 0; landmark < Landmarks::Count; ++landmark) {
      EXPECT_EQ(landmarks.Position(Landmarks::Landmark(landmark)),
                text.indexOf(tags[landmark], 0, Qt::CaseInsensitive))
          << qPrintable(tags[landmark]);
    }
  }

  QString text;
  Landmarks landmarks;
  int read = 0;  ///< characters that the last edit looked at
};

TEST_F(LandmarksTest, StayTheFirstOccurrencesUnderAnyEdits) {
  std::mt19937 random(11);
  const auto upTo = [&random](int most) { return int(random() % (most + 1)); };
  const QStringList pieces{QStringLiteral("<head>"), QStringLiteral("</HEAD>"),
                           QStringLiteral("<Body"),  QStringLiteral("</body"),
                           QStringLiteral("<"),      QStringLiteral("/"),
                           QStringLiteral("hea"),    QStringLiteral("d"),
                           QStringLiteral("<bo"),    QStringLiteral("dy x")};
  for (int step = 0; step < 3000 && !HasFailure(); ++step) {
    const int position = upTo(int(text.size()));
    const int most = text.size() > 150 ? 60 : 3;
    const int removed = std::min(upTo(most), int(text.size()) - position);
    Edit(position, removed, upTo(2) > 0 ? pieces[upTo(int(pieces.size()) - 1)] : QString());
  }
}

TEST_F(LandmarksTest, AnEditLooksAroundItselfUnlessItDestroysAnOccurrence) {
  const QString line = QStringLiteral("<p>some text</p>\n");
  Edit(0, 0,
       QStringLiteral("<html><head></head><body>\n") + line.repeated(20000) +
           QStringLiteral("</body>"));
  for (const int position : {0, 6, 30, 150000, int(text.size()) - 8, int(text.size())}) {
    Edit(position, 0, QStringLiteral("x"));
    EXPECT_LT(read, 50) << position;
    Edit(position, 1, {});
    EXPECT_LT(read, 50) << position;
  }
  for (int start = (1 << 16) - 6; start <= 1 << 16; ++start) {
    Edit(0, int(text.size()), QString(start, u' ') + QStringLiteral("<head></head>"));
  }
  Edit(int(text.indexOf(u"</head")) + 2, 1, {});
  EXPECT_LT(read, 50) << "what lies behind the destroyed one is short";
}

}  // namespace
