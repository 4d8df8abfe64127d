#include "frame/InstanceLock.h"

#include <QLockFile>
#include <QStandardPaths>
#include <memory>

#include "base/mFolders.h"

namespace {

QString LockPath(const QString &programFolder) {
  return mFolders::Join(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation),
                        QStringLiteral("tagwright-") + mFolders::Mark(programFolder));
}

}  // namespace

bool AnotherInstanceRuns(const QString &programFolder) {
  static std::unique_ptr<QLockFile> lock;
  lock = std::make_unique<QLockFile>(LockPath(programFolder));
  // A lock ages never: the program may run for weeks. One whose process has died is taken over.
  lock->setStaleLockTime(0);
  return !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
}
