#include "frame/WindowPlacement.h"

#include <cmath>

#include "base/mText.h"

namespace WindowPlacement {

namespace {

constexpr int mostInOneColumn = 4;

int Rounded(double number) {
  return int(mText::RoundToEven(number));
}

std::vector<Placement> Grid(int windows, int columns, int rows, WorkArea area) {
  const int height = Rounded(double(area.height) / rows);
  const int width = Rounded(double(area.width) / columns);
  std::vector<Placement> placements;
  for (int window = 0; window < windows; ++window) {
    placements.push_back({window / rows * width, window % rows * height, height, width});
  }
  return placements;
}

}  // namespace

std::vector<Placement> Arrange(int windows, WorkArea area) {
  if (windows <= mostInOneColumn) return TileHoricontally(windows, area);
  const int columns = Rounded(std::sqrt(windows));
  const double quotient = mText::Val(mText::Str(double(windows) / columns));
  return Grid(windows, columns, Rounded(quotient + 1), area);
}

std::vector<Placement> TileHoricontally(int windows, WorkArea area) {
  return windows < 1 ? std::vector<Placement>() : Grid(windows, 1, windows, area);
}

std::vector<Placement> TileVertitally(int windows, WorkArea area) {
  return windows < 1 ? std::vector<Placement>() : Grid(windows, windows, 1, area);
}

}  // namespace WindowPlacement
