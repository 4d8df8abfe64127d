#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <optional>

/// The picture in a file, as its content tells, whatever the name ends with: the first frame of an
/// animation, the largest image of an icon or cursor, turned as a camera's rotation mark asks.
/// Nothing if it can't be read, is larger than 256 megapixels, or the path names no regular file.
std::optional<QImage> LoadPicture(const QString &path);

struct ScaledPicture {
  QImage picture;
  QSize size;  ///< of the whole picture in the file, in its pixels
};

/// The same picture in the size that scaledTo gives for its whole size, which must not be empty. A
/// format that can be decoded at a smaller size is, which is much quicker.
std::optional<ScaledPicture> LoadScaledPicture(const QString &path,
                                               const std::function<QSize(QSize)> &scaledTo);

/// The files in which LoadPicture may find a picture, as an open dialog's filter, with all files
/// behind them.
QString PictureFilter();
