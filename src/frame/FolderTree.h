#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "base/mPlatform.h"

/// What the folder tree of the path selection shows, and the keys of its nodes: a node's key is its
/// full path with a separator at the end.
namespace FolderTree {

/// Names of the folders in a folder, hidden ones and links to folders among them, in the order of
/// the alphabet. Empty if it can't be read.
QStringList FoldersIn(const QString &folder);

/// Text and key of a drive's root: the drive letter with its colon in upper case; on a platform
/// without letters the volume's root with a separator at its end.
QString RootKey(const QString &drive, const Platform &platform);

QString ChildKey(const QString &parentKey, const QString &name, const Platform &platform);

/// The path that a node stands for, without separator at its end; nothing for a drive's root and
/// for the empty key of no node.
std::optional<QString> PathOf(const QString &key, const QString &rootKey, const Platform &platform);

}  // namespace FolderTree
