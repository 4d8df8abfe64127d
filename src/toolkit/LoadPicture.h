#pragma once

#include <QImage>
#include <QString>
#include <optional>

/// The picture in a file, as its content tells, whatever the name ends with: the first frame of an
/// animation, the largest image of an icon or cursor, turned as a camera's rotation mark asks.
/// Nothing if it can't be read, is larger than 256 megapixels, or the path names no regular file.
std::optional<QImage> LoadPicture(const QString &path);

/// The files in which LoadPicture may find a picture, as an open dialog's filter, with all files
/// behind them.
QString PictureFilter();
