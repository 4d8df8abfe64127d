#include "base/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

/// Whether the path leads round in a circle of links; QSaveFile would replace the first one.
bool IsLinkLoop(const QString &path) {
  constexpr int linksFollowed = 40;  // as many as the kernel follows
  QFileInfo target(path);
  for (int i = 0; i < linksFollowed && target.isSymLink(); ++i) {
    target.setFile(target.symLinkTarget());
  }
  return target.isSymLink();
}

/// Gives the new file the old one's owner, group and mode, which QSaveFile keeps only in part. An
/// owner that only the superuser could give is let go, a group isn't: its members would be shut
/// out.
bool KeepOwnerAndMode([[maybe_unused]] const QString &path, [[maybe_unused]] int newFile) {
#ifdef Q_OS_UNIX
  struct stat was;
  struct stat is;
  if (stat(QFile::encodeName(path).constData(), &was) != 0) return true;  // there is no old file
  if (fstat(newFile, &is) != 0) return false;
  const bool differs = was.st_uid != is.st_uid || was.st_gid != is.st_gid;
  if (differs && fchown(newFile, was.st_uid, was.st_gid) != 0 &&
      fchown(newFile, uid_t(-1), was.st_gid) != 0) {
    return false;
  }
  return (!differs && was.st_mode == is.st_mode) || fchmod(newFile, was.st_mode & 07777) == 0;
#else
  return true;
#endif
}

bool WriteInPlace(const QString &path, QByteArrayView bytes, QString &error) {
  QFile file(path);
  const bool written = file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly) &&
                       file.write(bytes.data(), bytes.size()) == bytes.size() && file.flush();
  if (!written) error = file.errorString();
  return written;
}

bool Write(const QString &path, QByteArrayView bytes, QString &error) {
  error = qt_error_string(EINVAL);
  if (path.isEmpty()) return false;
  const QFileInfo old(path);
  // A device or pipe would be replaced by a file, or opening it would wait for its other end.
  if ((old.exists() && !old.isFile()) || IsLinkLoop(path)) return false;

  QSaveFile file(path);
  file.setDirectWriteFallback(true);
  if (!file.open(QIODevice::WriteOnly)) {
    error = file.errorString();
    return false;
  }
  if (!KeepOwnerAndMode(path, file.handle())) {
    file.cancelWriting();
    return WriteInPlace(path, bytes, error);
  }
  // Asked for here, since commit reports success after a short write.
  if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush()) {
    error = file.errorString();
    file.cancelWriting();
    return false;
  }
  // All bytes found room on the disk; what still fails is putting the file into the old one's place
  // (a sticky folder, a mount point, a name too long for the one that it is renamed from).
  return file.commit() || WriteInPlace(path, bytes, error);
}

}  // namespace

bool WriteWholeFile(const QString &path, QByteArrayView bytes, QString *error) {
  QString told;
  return Write(path, bytes, error ? *error : told);
}
