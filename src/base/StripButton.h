#pragma once

#include "base/mText.h"

/// Edge of a cell of a drawn strip, in device-independent pixels.
constexpr int StripCell = 24;

/// The number, from 1, of the button at a coordinate along a drawn strip, on a scale whose zero is
/// the middle of the first cell.
inline int StripButton(double coordinate) {
  return int(mText::RoundToEven(coordinate / StripCell + 1));
}

/// The button under a pixel, counted from 0 at the strip's start. Never a half, so that each cell
/// has all of its pixels.
inline int StripButtonAt(int pixel) {
  return StripButton(pixel + 0.5 - StripCell / 2);
}
