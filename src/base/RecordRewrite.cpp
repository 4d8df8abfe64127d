#include "base/RecordRewrite.h"

#include <QFileInfo>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

bool ToDisk([[maybe_unused]] const QFile &file) {
#ifdef Q_OS_UNIX
  return fsync(file.handle()) == 0;
#else
  return true;
#endif
}

}  // namespace

// A scratch left behind by a process that was killed is no part of the new file, and a link there
// must not lead the bytes elsewhere.
FileRewrite::FileRewrite(const QString &path, const QString &scratch) : scratch_(scratch) {
  const QFileInfo old(path);
  target_ = old.exists() ? old.canonicalFilePath() : path;
  QFile::remove(scratch);
  good_ =
      (!old.exists() || old.isFile()) && scratch_.open(QIODevice::WriteOnly | QIODevice::NewOnly);
  if (good_ && old.exists()) scratch_.setPermissions(old.permissions());
}

FileRewrite::~FileRewrite() {
  if (scratch_.isOpen()) scratch_.remove();
}

void FileRewrite::Write(const char *bytes, qint64 count) {
  good_ = good_ && scratch_.write(bytes, count) == count;
}

bool FileRewrite::Commit() {
  good_ = good_ && scratch_.flush() && ToDisk(scratch_) &&
          std::rename(QFile::encodeName(scratch_.fileName()).constData(),
                      QFile::encodeName(target_).constData()) == 0;
  if (good_) scratch_.close();
  return good_;
}
