#include "documents/JournalFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>
#include <cstdio>

#include "base/mFolders.h"

namespace {

const QString inPlace = QStringLiteral(".journal");
const QString begun = QStringLiteral(".begun");
const QString damaged = QStringLiteral(".damaged");

// No other process, nor this one by another name, has the file.
bool Lock(const QFile &file) {
  // A file system without locks is no reason to lose texts.
  return flock(file.handle(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// Whether the file still has its name: it may have been replaced until it was locked.
bool HasItsName(const QFile &file) {
  struct stat opened;
  struct stat named;
  return fstat(file.handle(), &opened) == 0 &&
         lstat(QFile::encodeName(file.fileName()).constData(), &named) == 0 &&
         opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

std::unique_ptr<QFile> OpenLocked(const QString &path) {
  const QFileInfo info(path);
  if (!info.isFile() || info.isSymLink()) return nullptr;
  auto file = std::make_unique<QFile>(path);
  const bool mine =
      file->open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) &&
      Lock(*file) && HasItsName(*file);
  return mine ? std::move(file) : nullptr;
}

void SyncFolder(const QString &path) {
  const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

bool MakeFolder(const QString &path) {
  constexpr QFile::Permissions ownersOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  const QString parent = QFileInfo(path).absolutePath();
  QDir().mkpath(QFileInfo(parent).absolutePath());
  for (const QString &folder : {parent, path}) {
    if (QDir().mkdir(folder, ownersOnly)) SyncFolder(QFileInfo(folder).absolutePath());
  }
  return QFileInfo(path).isDir();
}

bool Rename(const QString &from, const QString &to) {
  return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// Gives the file a second name. Where the file system has no such names, a copy does.
void KeepAs(const QString &path, const QString &name) {
  if (link(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) != 0) {
    QFile::copy(path, name);
  }
}

// Names in the order of their making that no other process makes.
QString NewName() {
  static std::atomic<int> made = 0;
  return QStringLiteral("%1-%2-%3")
             .arg(QDateTime::currentMSecsSinceEpoch(), 15, 10, QLatin1Char('0'))
             .arg(++made, 6, 10, QLatin1Char('0'))
             .arg(QCoreApplication::applicationPid()) +
         inPlace;
}

}  // namespace

JournalFile::JournalFile(const QString &folder) : path_(mFolders::Join(folder, NewName())) {}

QStringList JournalFile::In(const QString &folder) {
  QStringList paths;
  const auto names = QDir(folder).entryList({u'*' + inPlace}, QDir::Files, QDir::Name);
  for (const QString &name : names) paths << mFolders::Join(folder, name);
  return paths;
}

std::optional<JournalFile::Found> JournalFile::TakeOver(const QString &path) {
  auto file = OpenLocked(path);
  if (!file) return std::nullopt;
  auto document = JournalRecords::Read(*file);
  if (file->error() != QFileDevice::NoError) return std::nullopt;
  if (!document) {
    Rename(path, path + damaged);
    return std::nullopt;
  }
  if (!document->whole) KeepAs(path, path + damaged);
  std::shared_ptr<JournalFile> taken(new JournalFile);
  taken->path_ = path;
  taken->file_ = std::move(file);
  return Found{std::move(taken), *std::move(document)};
}

void JournalFile::RemoveUnfinished(const QString &folder) {
  const auto names = QDir(folder).entryList({u'*' + inPlace + begun}, QDir::Files);
  for (const QString &name : names) {
    if (const auto file = OpenLocked(mFolders::Join(folder, name))) file->remove();
  }
}

void JournalFile::Begin() {
  failed_ = false;
  if (begun_) begun_->remove();
  begun_ = std::make_unique<QFile>(path_ + begun);
  if (!MakeFolder(QFileInfo(path_).absolutePath()) ||
      !begun_->open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                    QFile::ReadOwner | QFile::WriteOwner) ||
      !Lock(*begun_)) {
    Fail();
    return;
  }
  Append(JournalRecords::Heading());
}

void JournalFile::Append(const QByteArray &records) {
  QFile *log = begun_ ? begun_.get() : file_.get();
  if (failed_ || !log) return;
  const qint64 before = log->size();
  if (log->write(records) == records.size()) return;
  log->resize(before);
  Fail();
}

void JournalFile::Sync() {
  QFile *log = begun_ ? begun_.get() : file_.get();
  if (!failed_ && log && fdatasync(log->handle()) != 0) Fail();
}

void JournalFile::Commit() {
  Sync();
  if (!begun_ || failed_) return;
  if (!Rename(begun_->fileName(), path_)) {
    Fail();
    return;
  }
  file_ = std::move(begun_);
  SyncFolder(QFileInfo(path_).absolutePath());
}

// What has been begun in vain makes room on a full disk.
void JournalFile::Fail() {
  failed_ = true;
  if (begun_) begun_->remove();
  begun_.reset();
}

void JournalFile::Remove() {
  if (begun_) begun_->remove();
  begun_.reset();
  if (!file_) return;
  QFile::remove(path_);
  file_.reset();
  SyncFolder(QFileInfo(path_).absolutePath());
}

QString JournalFolder(const QString &programFolder) {
  QString state = qEnvironmentVariable("XDG_STATE_HOME");
  if (QDir::isRelativePath(state)) state = QDir::homePath() + QStringLiteral("/.local/state");
  return mFolders::Join(mFolders::Join(state, QStringLiteral("tagwright")),
                        mFolders::Mark(programFolder));
}
