#pragma once

#include <QPixmap>
#include <QRect>

/// The picture of the about box, 520 by 320 pixels, drawn for the given number of device pixels to
/// the pixel.
QPixmap AboutPicture(qreal devicePixelRatio);

/// Where the picture has room for the running text, in pixels.
inline constexpr QRect aboutTextPlace(276, 40, 220, 214);
