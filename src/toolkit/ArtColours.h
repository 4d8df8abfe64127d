#pragma once

#include <QColor>

/// The colours of everything that is drawn for the program's windows; those of the strips' artwork
/// in data/source/strips are the same.
namespace ArtColours {

inline constexpr QColor Outline(0x6a, 0x7e, 0x98);
inline constexpr QColor Paper(0xff, 0xff, 0xff);
inline constexpr QColor Shade(0xc9, 0xd3, 0xe0);
inline constexpr QColor Blue(0x2f, 0x7b, 0xd0);
inline constexpr QColor DarkBlue(0x25, 0x60, 0xa8);
inline constexpr QColor Green(0x2f, 0x9e, 0x50);
inline constexpr QColor Yellow(0xf5, 0xc8, 0x4c);
inline constexpr QColor Orange(0xe0, 0x88, 0x1a);
inline constexpr QColor Red(0xdc, 0x42, 0x38);
inline constexpr QColor Wood(0xb8, 0x73, 0x33);
inline constexpr QColor Night(0x1d, 0x2b, 0x3f);

}  // namespace ArtColours
