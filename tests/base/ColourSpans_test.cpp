#include "base/ColourSpans.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// A colour for every character, edited the plain way.
class PlainColours {
 public:
  void Set(int start, int end, quint32 colour) {
    std::fill(colours.begin() + start, colours.begin() + end, colour);
  }
  void Edited(int position, int removed, int added) {
    colours.erase(colours.begin() + position, colours.begin() + position + removed);
    colours.insert(colours.begin() + position, added, ColourSpans::Black);
  }
  std::vector<quint32> colours;
};

std::vector<quint32> Spread(const ColourSpans &spans, int start, int end) {
  std::vector<quint32> colours(end - start);
  for (const auto &span : spans.Within(start, end)) {
    EXPECT_TRUE(start <= span.start && span.start < span.end && span.end <= end);
    std::fill(colours.begin() + (span.start - start), colours.begin() + (span.end - start),
              span.colour);
  }
  return colours;
}

TEST(ColourSpans, FollowAnyEditsAsIfEachCharacterHadItsColour) {
  std::mt19937 random(7);
  const auto upTo = [&random](int most) { return int(random() % (most + 1)); };
  ColourSpans spans;
  PlainColours plain;
  plain.Edited(0, 0, 60);
  for (int step = 0; step < 4000; ++step) {
    const int length = int(plain.colours.size());
    const int start = upTo(length);
    const int end = start + upTo(std::min(length - start, 12));
    if (upTo(2) == 0) {
      const int added = upTo(12);
      spans.Edited(start, end - start, added);
      plain.Edited(start, end - start, added);
    } else {
      const quint32 colour = upTo(3);
      spans.Set(start, end, colour);
      plain.Set(start, end, colour);
    }
    const int now = int(plain.colours.size());
    ASSERT_EQ(Spread(spans, 0, now), plain.colours) << "step " << step;
    const int from = upTo(now), to = from + upTo(now - from);
    ASSERT_EQ(Spread(spans, from, to),
              std::vector<quint32>(plain.colours.begin() + from, plain.colours.begin() + to));
  }
}

}  // namespace
