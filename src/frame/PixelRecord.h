#pragma once

#include <QtEndian>
#include <type_traits>

/// One point of a drawn strip or picture, as it lies in File0001.dat to File0007.dat and
/// File0009.dat. A file is a run of these without header; the last record of a file is never drawn.
struct PixelRecord {
  qint32_le x;       ///< pixels from the strip's left edge
  qint32_le y;       ///< pixels from the strip's top edge
  qint32_le colour;  ///< red + 256 green + 65536 blue, each 0 to 255
};

static_assert(sizeof(PixelRecord) == 12);
static_assert(std::is_trivially_copyable_v<PixelRecord>);
