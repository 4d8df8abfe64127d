#include "frame/WindowPlacement.h"

#include <gtest/gtest.h>

namespace WindowPlacement {

TEST(WindowPlacementTest, ArrangeFillsAGridColumnByColumn) {
  for (const auto &[windows, rows, last] : {std::tuple(1, 1, Placement{0, 0, 8000, 9000}),
                                            {4, 4, {0, 6000, 2000, 9000}},
                                            {5, 4, {4500, 0, 2000, 4500}},
                                            {9, 4, {6000, 0, 2000, 3000}},
                                            {14, 4, {6750, 2000, 2000, 2250}},
                                            {100, 11, {8100, 0, 727, 900}}}) {
    const auto placements = Arrange(windows, {8000, 9000});
    ASSERT_EQ(placements.size(), windows);
    EXPECT_EQ(placements[rows - 1],
              (Placement{0, (rows - 1) * last.height, last.height, last.width}));
    EXPECT_EQ(placements.back(), last) << windows;
  }
}

TEST(WindowPlacementTest, SharesAreRoundedToEvenBeforeTheyAreCountedOff) {
  EXPECT_EQ(TileHoricontally(6, {105, 15}).back(), (Placement{0, 90, 18, 15}));
  EXPECT_EQ(TileVertitally(6, {105, 15}).back(), (Placement{10, 0, 105, 2}));
  for (Layout *layout : {&Arrange, &TileHoricontally, &TileVertitally}) {
    EXPECT_TRUE(layout(0, {105, 15}).empty());
  }
}

}  // namespace WindowPlacement
