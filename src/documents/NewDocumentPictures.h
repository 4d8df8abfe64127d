#pragma once

#include <QPixmap>

#include "documents/NewDocumentText.h"

/// The picture of a document type: a sheet of 32 by 32 pixels that shows what it begins with, drawn
/// for the given number of device pixels to the pixel.
QPixmap NewDocumentPicture(NewDocumentType type, qreal devicePixelRatio);
