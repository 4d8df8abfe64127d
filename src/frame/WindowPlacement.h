#pragma once

#include <vector>

/// Where the commands of the window menu put the editor windows. All lengths are whole twips.
namespace WindowPlacement {

/// The room that the windows share.
struct WorkArea {
  int height;
  int width;
};

struct Placement {
  int left;
  int top;
  int height;
  int width;
  bool operator==(const Placement &) const = default;
};

/// The places of so many windows in the order of their slots; none for a count below 1. A share of
/// a length is rounded, halves to even, before the places are counted off in it, so the last window
/// may end a few twips before or behind the area's edge.
using Layout = std::vector<Placement>(int windows, WorkArea area);

/// One column for up to four windows; for more a grid that is filled column by column and has
/// room for at least one row more than it needs on average, so its last column may stay partly
/// empty.
Layout Arrange;

/// One window below the other, each as wide as the area.
Layout TileHoricontally;

/// One window beside the other, each as high as the area.
Layout TileVertitally;

}  // namespace WindowPlacement
