#pragma once

/// Device-independent pixels of a length in twips, 15 to the pixel.
constexpr int twips(int length) {
  return length / 15;
}
