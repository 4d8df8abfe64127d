#include "frame/FolderTree.h"

#include <QDirIterator>
#include <algorithm>

namespace FolderTree {

QStringList FoldersIn(const QString &folder) {
  QStringList names;
  QDirIterator entries(folder, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
  while (entries.hasNext()) {
    entries.next();
    names << entries.fileName();
  }
  names.sort(Qt::CaseInsensitive);
  return names;
}

QString RootKey(const QString &drive, const Platform &platform) {
  if (platform.driveLetters) return drive.left(2).toUpper();
  return drive.endsWith(platform.separator) ? drive : drive + platform.separator;
}

QString ChildKey(const QString &parentKey, const QString &name, const Platform &platform) {
  const bool ends = parentKey.endsWith(platform.separator);
  return (ends ? parentKey : parentKey + platform.separator) + name + platform.separator;
}

std::optional<QString> PathOf(const QString &key, const QString &rootKey,
                              const Platform &platform) {
  if (key == rootKey) return std::nullopt;
  const QString path = key.chopped(std::min<qsizetype>(key.size(), 1));
  const int shortest = platform.driveLetters ? 3 : 1;
  if (path.size() < shortest) return std::nullopt;
  return path;
}

}  // namespace FolderTree
