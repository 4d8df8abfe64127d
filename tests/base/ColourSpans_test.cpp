#include "base/ColourSpans.h"

#include <gtest/gtest.h>

#include <random>

TEST(ColourSpans, FollowAnyEditsAsIfEachCharacterHadItsColour) {
  std::mt19937 random(7);
  const auto upTo = [&random](int most) { return int(random() % (most + 1)); };
  ColourSpans spans;
  std::vector<quint32> plain(60);
  for (int step = 0; step < 4000; ++step) {
    const int start = upTo(int(plain.size()));
    const int length = upTo(std::min(int(plain.size()) - start, 12));
    const auto begin = plain.begin() + start;
    if (upTo(2) == 0) {
      const int added = upTo(12);
      spans.Edited(start, length, added);
      plain.insert(plain.erase(begin, begin + length), added, ColourSpans::Black);
    } else {
      const quint32 colour = upTo(3);
      spans.Set(start, start + length, colour);
      std::fill_n(begin, length, colour);
    }
    const int from = upTo(int(plain.size()));
    const int to = from + upTo(int(plain.size()) - from);
    std::vector<quint32> spread(plain.size());
    for (const auto &span : spans.Within(from, to)) {
      ASSERT_TRUE(from <= span.start && span.end <= to);
      std::fill(spread.begin() + span.start, spread.begin() + span.end, span.colour);
    }
    ASSERT_TRUE(std::equal(plain.begin() + from, plain.begin() + to, spread.begin() + from));
  }
}
