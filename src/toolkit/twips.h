#pragma once

constexpr int TwipsPerPixel = 15;

/// Device-independent pixels of a length in twips.
constexpr int twips(int length) {
  return length / TwipsPerPixel;
}
