#pragma once

#include <QStringList>

/// What the image browser sees of the disk.
namespace ImageFolder {

/// The folders in a folder, hidden ones too, in binary order, without those named "temporary" in
/// any letter case. Empty if it can't be read.
QStringList Folders(const QString &folder);

/// The regular files in a folder and links to such, regardless of letter case in order, without
/// hidden ones. Empty if it can't be read.
QStringList Files(const QString &folder);

/// Whether the last three characters of a name tell of a picture.
bool IsImageName(const QString &name);

/// Folder and name; a folder that ends in a separator gets no second one.
QString Path(const QString &folder, const QString &name);

}  // namespace ImageFolder
