#include "base/TemporaryFolder.h"

#include <unistd.h>

#include <QDir>
#include <QFileInfo>

namespace TemporaryFolder {

State StateOf(const QString &folder) {
  // A separator at the end would lead through a symbolic link.
  const QFileInfo found(QDir::cleanPath(folder));
  if (found.isSymLink()) return State::Foreign;
  if (!found.exists()) return State::Missing;
  return found.isDir() && found.ownerId() == geteuid() ? State::Usable : State::Foreign;
}

bool Make(const QString &folder) {
  const QString path = QDir::cleanPath(folder);
  return QDir().mkpath(QFileInfo(path).path()) &&
         QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace TemporaryFolder
