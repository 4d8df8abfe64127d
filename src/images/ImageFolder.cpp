#include "images/ImageFolder.h"

#include <QDir>
#include <algorithm>
#include <array>

#include "base/mFolders.h"
#include "base/mText.h"

namespace ImageFolder {

QStringList Folders(const QString &folder) {
  QStringList names =
      QDir(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted);
  names.removeIf([](const QString &name) {
    return name.compare(QLatin1String("temporary"), Qt::CaseInsensitive) == 0;
  });
  std::sort(names.begin(), names.end());
  return names;
}

QStringList Files(const QString &folder) {
  QStringList names = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
  std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
  });
  return names;
}

bool IsImageName(const QString &name) {
  // "PEG" is the end of ".jpeg".
  constexpr std::array<const char *, 9> types{"BMP", "GIF", "JPG", "PEG", "JIF",
                                              "PNG", "WMF", "CUR", "ICO"};
  const QString type = mText::Right(name, 3).toUpper();
  return std::any_of(types.begin(), types.end(),
                     [&type](const char *known) { return type == QLatin1String(known); });
}

QString Path(const QString &folder, const QString &name) {
  return folder.endsWith(u'/') ? folder + name : mFolders::Join(folder, name);
}

}  // namespace ImageFolder
