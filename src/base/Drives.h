#pragma once

#include <QStringList>

/// What stands in for drives where paths have no drive letters: the root first, then the volumes
/// mounted below /media, /mnt and /run/media in the order of their names.
QStringList Drives();

/// The drives among these mount points.
QStringList DrivesAmong(const QStringList &mountPoints);
