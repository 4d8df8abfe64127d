#pragma once

#include <QPixmap>

/// The picture of the splash, 480 by 270 pixels, drawn for the given number of device pixels to the
/// pixel.
QPixmap SplashPicture(qreal devicePixelRatio);
