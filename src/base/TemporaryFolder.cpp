#include "base/TemporaryFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace TemporaryFolder {

// A separator at the end would lead through a symbolic link.
State Look(const QString &path) {
  struct stat entry;
  if (lstat(QFile::encodeName(QDir::cleanPath(path)).constData(), &entry) != 0) {
    return errno == ENOENT ? State::Missing : State::Foreign;
  }
  return S_ISDIR(entry.st_mode) && entry.st_uid == geteuid() ? State::Usable : State::Foreign;
}

bool Make(const QString &path) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  // In one step with its mode; whatever came in between is looked at again.
  mkdir(QFile::encodeName(path).constData(), S_IRWXU);
  return Look(path) == State::Usable;
}

}  // namespace TemporaryFolder
