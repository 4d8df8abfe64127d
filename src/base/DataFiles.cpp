#include "base/DataFiles.h"

#include <QFileInfo>

#include "base/mFolders.h"

const std::array<DataFile, 11> DataFiles{{
    {"File0001.dat", 13248},
    {"File0002.dat", 17652},
    {"File0003.dat", 2328},
    {"File0004.dat", 7884},
    {"File0005.dat", 9168},
    {"File0006.dat", 2640},
    {"File0007.dat", 288},
    {"preferences.dat", 3557},
    {"sc.dat", 3741},
    {"htLib0001.htf", 2904400},
    {"File0009.dat", 2556},
}};

QStringList DataFileNames() {
  QStringList names;
  for (const DataFile &file : DataFiles) names << QString::fromLatin1(file.name);
  return names;
}

std::optional<QString> FirstDefectDataFile(const QString &programFolder) {
  for (int row = 0; row < TestedDataFiles; ++row) {
    const QString name = QString::fromLatin1(DataFiles[row].name);
    const QFileInfo file(mFolders::Join(programFolder, name));
    if (!file.isFile() || file.size() != DataFiles[row].bytes) return name;
  }
  return std::nullopt;
}
