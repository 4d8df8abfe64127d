#include "frame/WindowPlacement.h"

#include <gtest/gtest.h>

namespace WindowPlacement {
namespace {

TEST(WindowPlacementTest, ArrangeFillsAGridColumnByColumn) {
  struct Case {
    int windows;
    int rows;
    Placement last;
  };
  for (const Case &c :
       {Case{1, 1, {0, 0, 8000, 9000}}, Case{4, 4, {0, 6000, 2000, 9000}},
        Case{5, 4, {4500, 0, 2000, 4500}}, Case{9, 4, {6000, 0, 2000, 3000}},
        Case{14, 4, {6750, 2000, 2000, 2250}}, Case{100, 11, {8100, 0, 727, 900}}}) {
    const auto placements = Arrange(c.windows, {8000, 9000});
    ASSERT_EQ(placements.size(), c.windows);
    EXPECT_EQ(placements.front(), (Placement{0, 0, c.last.height, c.last.width}));
    EXPECT_EQ(placements[c.rows - 1].top, (c.rows - 1) * c.last.height) << c.windows;
    if (c.rows < c.windows) {
      EXPECT_EQ(placements[c.rows], (Placement{c.last.width, 0, c.last.height, c.last.width}));
    }
    EXPECT_EQ(placements.back(), c.last) << c.windows;
  }
}

TEST(WindowPlacementTest, SharesAreRoundedToEvenBeforeTheyAreCountedOff) {
  const WorkArea area{105, 15};
  EXPECT_EQ(TileHoricontally(2, area).back(), (Placement{0, 52, 52, 15}));
  EXPECT_EQ(TileHoricontally(6, area).back(), (Placement{0, 90, 18, 15}));
  EXPECT_EQ(TileVertitally(6, area).back(), (Placement{10, 0, 105, 2}));
  for (Layout *layout : {&Arrange, &TileHoricontally, &TileVertitally}) {
    EXPECT_TRUE(layout(0, area).empty());
  }
}

}  // namespace
}  // namespace WindowPlacement
