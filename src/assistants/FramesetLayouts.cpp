#include "assistants/FramesetLayouts.h"

#include <utility>

FramePart::FramePart(Kind direction, std::vector<int> sizes, std::vector<FramePart> inner)
    : kind(direction), percents(std::move(sizes)), parts(std::move(inner)) {}

FramePart FramePart::Rows(std::vector<int> percents, std::vector<FramePart> parts) {
  return {Kind::Rows, std::move(percents), std::move(parts)};
}

FramePart FramePart::Cols(std::vector<int> percents, std::vector<FramePart> parts) {
  return {Kind::Columns, std::move(percents), std::move(parts)};
}

std::vector<FrameListEntry> FramesetLayout::Entries() const {
  if (!odd.entries.empty()) return odd.entries;
  std::vector<FrameListEntry> entries;
  for (int slot = 0; slot < int(slots.size()); ++slot) entries.push_back({slot, slot});
  return entries;
}

const std::vector<FramesetLayout> &FramesetLayouts() {
  using enum NoFramesForm;
  constexpr auto Rows = &FramePart::Rows;
  constexpr auto Cols = &FramePart::Cols;
  // A frame of that name, with its source slot and attribute row.
  constexpr auto Frame = [](const char *name) {
    return [name](int slot, int row) { return FramePart(name, slot, row); };
  };
  constexpr auto Upper = Frame("UpperFrame");
  constexpr auto Middle = Frame("MiddleFrame");
  constexpr auto Bottom = Frame("BottomFrame");
  constexpr auto Left = Frame("LeftFrame");
  constexpr auto Right = Frame("RightFrame");
  constexpr auto UpperLeft = Frame("UpperLeftFrame");
  constexpr auto UpperRight = Frame("UpperRightFrame");
  constexpr auto BottomLeft = Frame("BottomLeftFrame");
  constexpr auto BottomRight = Frame("BottomRightFrame");
  constexpr auto Main = Frame("MainFrame");
  // Names that belie their place, rows that repeat or lie beyond the table: these framesets have
  // always been so.
  // clang-format off
  static const std::vector<FramesetLayout> layouts{
    /*  0 */ {Rows({20, 80}, {Upper(0, 1), Bottom(1, 2)}),
              {"Upper", "Bottom"}, A},
    /*  1 */ {Rows({20, 60, 20}, {Upper(0, 1), Middle(1, 2), Bottom(2, 3)}),
              {"Upper", "Middle", "Bottom"}, A},
    /*  2 */ {Cols({80, 20}, {Left(0, 2), Right(1, 3)}),
              {"Right", "Left"}, B, {.entries = {{0, 0}, {1, 0}}}},
    /*  3 */ {Cols({20, 80}, {Left(0, 2), Right(1, 3)}),
              {"Right", "Left"}, B},
    /*  4 */ {Rows({80, 20}, {Upper(0, 1), Bottom(1, 2)}),
              {"Upper", "Bottom"}, A},
    /*  5 */ {Rows({20, 80}, {Upper(0, 1), Cols({80, 20}, {Left(1, 2), Right(2, 3)})}),
              {"Upper", "Left", "Right"}, C},
    /*  6 */ {Cols({20, 60, 20}, {Left(0, 1), Middle(1, 2), Right(2, 3)}),
              {"Left", "Middle", "Right"}, B},
    /*  7 */ {Rows({20, 80}, {Upper(0, 1), Cols({20, 80}, {Left(1, 2), Right(2, 3)})}),
              {"Upper", "Left", "Right"}, C},
    /*  8 */ {Rows({80, 20}, {Cols({80, 20}, {Left(0, 1), Right(1, 2)}), Upper(2, 3)}),
              {"Left", "Right", "Bottom"}, C},
    /*  9 */ {Rows({80, 20}, {Cols({20, 80}, {Left(0, 1), Right(1, 2)}), Upper(2, 3)}),
              {"Left", "Right", "Bottom"}, C},
    /* 10 */ {Rows({20, 80}, {Upper(0, 1),
                  Cols({20, 60, 20}, {Left(1, 2), Middle(2, 3), Right(3, 4)})}),
              {"Upper", "Left", "Middle", "Right"}, C},
    /* 11 */ {Rows({80, 20}, {
                  Cols({20, 60, 20}, {Left(0, 1), Middle(1, 2), Right(2, 3)}), Bottom(3, 4)}),
              {"Left", "Middle", "Right", "Bottom"}, C,
              {.entries = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}}},
    /* 12 */ {Rows({20, 60, 20}, {Upper(0, 1),
                  Cols({20, 60, 20}, {Left(1, 2), Middle(2, 3), Right(3, 4)}), Bottom(4, 5)}),
              {"Upper", "Left", "Middle", "Right", "Bottom"}, C,
              {.entries = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 0}}}},
    /* 13 */ {Cols({20, 60, 20}, {Left(0, 1),
                  Rows({20, 60, 20}, {Upper(1, 2), Middle(2, 3), Bottom(3, 4)}), Right(4, 5)}),
              {"Left", "Upper", "Middle", "Bottom", "Right"}, C},
    /* 14 */ {Cols({20, 80}, {Right(0, 1), Rows({20, 80}, {Upper(1, 2), Bottom(2, 3)})}),
              {"Left", "Upper", "Bottom"}, B},
    /* 15 */ {Cols({80, 20}, {Rows({20, 80}, {Upper(0, 1), Bottom(1, 2)}), Right(2, 3)}),
              {"Upper", "Bottom", "Right"}, B},
    /* 16 */ {Cols({20, 60, 20}, {Left(0, 1),
                  Rows({20, 80}, {Upper(1, 2), Bottom(2, 3)}), Right(3, 4)}),
              {"Left", "Upper", "Bottom", "Right"}, C},
    /* 17 */ {Cols({20, 80}, {Left(0, 1), Rows({80, 20}, {Upper(1, 2), Bottom(2, 3)})}),
              {"Left", "Upper", "Bottom"}, B, {.entries = {{0, 0}, {1, 1}, {0, 1}}}},
    /* 18 */ {Cols({20, 80}, {Rows({80, 20}, {Upper(0, 1), Bottom(1, 2)}), Left(2, 3)}),
              {"Upper", "Bottom", "Right"}, B},
    /* 19 */ {Cols({20, 60, 20}, {Left(0, 1),
                  Rows({80, 20}, {Upper(1, 2), Bottom(2, 3)}), Right(3, 4)}),
              {"Left", "Upper", "Bottom", "Right"}, C},
    /* 20 */ {Cols({20, 80}, {Left(0, 1),
                  Rows({20, 60, 20}, {Upper(1, 2), Middle(2, 3), Bottom(3, 4)})}),
              {"Left", "Upper", "Middle", "Bottom"}, D},
    /* 21 */ {Cols({80, 20}, {
                  Rows({20, 60, 20}, {Upper(0, 1), Middle(1, 2), Bottom(2, 3)}), Right(3, 1)}),
              {"Upper", "Middle", "Bottom", "Right"}, D},
    /* 22 */ {Rows({20, 60, 20}, {Upper(0, 1),
                  Cols({20, 80}, {Left(1, 2), Right(2, 3)}), Bottom(3, 4)}),
              {"Upper", "Left", "Right", "Bottom"}, C},
    /* 23 */ {Rows({20, 60, 20}, {Upper(0, 1),
                  Cols({80, 20}, {Left(1, 2), Right(2, 3)}), Bottom(3, 4)}),
              {"Upper", "Left", "Right", "Bottom"}, C},
    /* 24 */ {Rows({50, 50}, {Cols({50, 50}, {UpperLeft(0, 1), UpperRight(1, 2)}),
                  Cols({50, 50}, {BottomLeft(2, 3), BottomRight(3, 4)})}),
              {"Upper Left", "Upper Right", "Bottom Left", "Bottom Right"}, D,
              {.tabs = {"Left", "Right", "Bottom Left", "Bottom Right"}}},
    /* 25 */ {Rows({100}, {Main(0, 1)}),
              {"Main"}, A, {.tabs = {"Main Frame"}, .keepsAttributes = true}},
  };
  // clang-format on
  return layouts;
}
