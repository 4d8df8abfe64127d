#include "base/mPlatform.h"

#include <QDir>
#include <QStandardPaths>

namespace mPlatform {

const Platform &Original() {
  static const Platform platform{
      .separator = QStringLiteral("\\"),
      .temporaryFolder = QStringLiteral("C:\\Temp"),
      .executableSuffix = QStringLiteral(".exe"),
      .javaCompiler = QStringLiteral("javac.exe"),
      .appletViewer = QStringLiteral("appletviewer.exe"),
      .ownProgram = QStringLiteral("tagwright.exe"),
      .driveLetters = true,
  };
  return platform;
}

const Platform &Current() {
  static const Platform platform{
      .separator = QStringLiteral("/"),
      .temporaryFolder =
          QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
              .absoluteFilePath(QStringLiteral("tagwright")),
      .executableSuffix = {},
      .javaCompiler = QStringLiteral("javac"),
      .appletViewer = QStringLiteral("appletviewer"),
      .ownProgram = QStringLiteral("tagwright"),
      .driveLetters = false,
  };
  return platform;
}

QString WithTemporaryFolder(const QString &text, const Platform &platform) {
  const QString &original = Original().temporaryFolder;
  if (platform.temporaryFolder == original) return text;
  return QString(text).replace(original, platform.temporaryFolder, Qt::CaseInsensitive);
}

}  // namespace mPlatform
