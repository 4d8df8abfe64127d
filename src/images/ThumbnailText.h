#pragma once

#include <QSize>
#include <QString>

/// What a cell shows in place of the name of a file that can't be read.
extern const QString notReadable;

/// A file's name as it fits a cell of that width index: a name beyond 8, 12, 25 or 35 characters is
/// cut there, in lower case, with three points behind it.
QString ThumbnailName(const QString &name, int widthIndex);

/// A name in one line: a control character, such as a line break, becomes a blank.
QString InOneLine(QString name);

/// "700 bytes", and from 1024 on "1.5 kb", not rounded.
QString FileSizeText(qint64 bytes);

/// "Height/Width: 480x640   Size: 1.5 kb".
QString ImageStatusText(QSize picture, qint64 bytes);

/// A path of more than 33 characters is shown by its last 33, with three points before them.
QString ShownImagePath(const QString &path);
