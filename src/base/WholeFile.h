#pragma once

#include <QByteArray>
#include <QString>

/// Replaces a file as a whole: written beside it, flushed and renamed over it, so that a full disk
/// or a crash leaves the old file. A symbolic link's target is written; permissions and, as far as
/// the system lets us, owner stay. Where no file can be put in the old one's place (a folder
/// without write permission, a name too long for a companion), it is written in place. Makes the
/// file if there is none. Folders, devices and pipes are refused. True only if every byte was
/// taken; on false an old file is as it was (but for a write in place that broke off in the
/// middle), and error tells
/// why in the system's own words.
bool WriteWholeFile(const QString &path, QByteArrayView bytes, QString *error = nullptr);
