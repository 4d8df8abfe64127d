#include "frame/InstanceLock.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <memory>

#include "base/mFolders.h"

namespace {

QString LockPath(const QString &programFolder) {
  const QByteArray folder = QFileInfo(programFolder).canonicalFilePath().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex();
  return mFolders::Join(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation),
                        QStringLiteral("tagwright-") + QString::fromLatin1(hash.left(16)));
}

}  // namespace

bool AnotherInstanceRuns(const QString &programFolder) {
  static std::unique_ptr<QLockFile> lock;
  lock = std::make_unique<QLockFile>(LockPath(programFolder));
  // A lock ages never: the program may run for weeks. One whose process has died is taken over.
  lock->setStaleLockTime(0);
  return !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
}
