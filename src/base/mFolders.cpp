#include "base/mFolders.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>

#include "base/DataFiles.h"
#include "base/mPlatform.h"

namespace mFolders {
namespace {

const QString preferencesFile = QStringLiteral("preferences.dat");

/// The one file that each user has of their own; writable, whatever the delivered one is.
bool CopyPreferences(const QString &from, const QString &to) {
  if (!QFile::copy(from, to)) return false;
  return QFile::setPermissions(to, QFile::permissions(to) | QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace

QString Join(const QString &folder, const QString &name) {
  return folder + mPlatform::Current().separator + name;
}

QString ChooseProgramFolder(const ProgramFolderSources &sources) {
  if (!sources.environmentFolder.isEmpty()) return QDir(sources.environmentFolder).absolutePath();
  const bool installedHere =
      std::any_of(sources.dataFiles.cbegin(), sources.dataFiles.cend(), [&](const QString &name) {
        return QFileInfo(Join(sources.executableFolder, name)).isFile();
      });
  return installedHere ? sources.executableFolder : sources.userDataFolder;
}

bool FillUserDataFolder(const ProgramFolderSources &sources) {
  const QFileInfo target(sources.userDataFolder);
  if (target.exists() || target.isSymLink()) return target.isDir();
  const QString parent = target.absolutePath();
  if (!QDir().mkpath(parent)) return false;
  QTemporaryDir filling(Join(parent, target.fileName() + QStringLiteral(".XXXXXX")));
  if (!filling.isValid()) return false;
  // Cleaned of "..", so the links read well; not canonical, so they outlast a moved version.
  const QDir shared(QDir::cleanPath(QDir(sources.sharedDataFolder).absolutePath()));
  for (const QString &name : shared.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
    if (name == preferencesFile) continue;
    if (!QFile::link(shared.filePath(name), filling.filePath(name))) return false;
  }
  if (!CopyPreferences(shared.filePath(preferencesFile), filling.filePath(preferencesFile))) {
    return false;
  }
  if (!QDir().rename(filling.path(), target.absoluteFilePath())) {
    return QFileInfo(sources.userDataFolder).isDir();  // another process was quicker
  }
  filling.setAutoRemove(false);
  return true;
}

const QString &ProgramFolder() {
  static const QString folder = [] {
    const QString executableFolder = QCoreApplication::applicationDirPath();
    const ProgramFolderSources sources{
        .environmentFolder = qEnvironmentVariable("TAGWRIGHT_FOLDER"),
        .executableFolder = executableFolder,
        .userDataFolder =
            QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
                .absoluteFilePath(QStringLiteral("tagwright")),
        .sharedDataFolder = Join(executableFolder, QStringLiteral("../share/tagwright")),
        .dataFiles = DataFileNames(),
    };
    const QString chosen = ChooseProgramFolder(sources);
    // A folder that the environment names is never filled, be it this one.
    if (sources.environmentFolder.isEmpty() && chosen == sources.userDataFolder) {
      FillUserDataFolder(sources);
    }
    return chosen;
  }();
  return folder;
}

QString Mark(const QString &programFolder) {
  const QByteArray folder = QFileInfo(programFolder).canonicalFilePath().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex();
  return QString::fromLatin1(hash.left(16));
}

QString InProgramFolder(const QString &name) {
  return Join(ProgramFolder(), name);
}

QString HelperProgram(const QString &name, const QString &executableFolder) {
  return QStandardPaths::findExecutable(
      name, {Join(executableFolder, QStringLiteral("../libexec/tagwright")), executableFolder});
}

}  // namespace mFolders
