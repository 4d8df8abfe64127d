#include "base/DataFiles.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "shared/Files.h"

namespace {

TEST(DataFilesTest, TheFirstNineAreTestedByLength) {
  QTemporaryDir folder;
  const auto write = [&folder](int row, qint64 bytes) {
    PutFile(folder.filePath(QLatin1String(DataFiles[row].name)), QByteArray(bytes, 'x'));
  };
  for (int row = 0; row < TestedDataFiles; ++row) write(row, DataFiles[row].bytes);
  EXPECT_EQ(FirstDefectDataFile(folder.path()), std::nullopt) << "rows 9 and 10 may be missing";
  for (int row = 0; row < TestedDataFiles; ++row) {
    const QString name = QLatin1String(DataFiles[row].name);
    for (const qint64 off : {-1, 1}) {
      write(row, DataFiles[row].bytes + off);
      EXPECT_EQ(FirstDefectDataFile(folder.path()), name);
    }
    QFile::remove(folder.filePath(name));
    EXPECT_EQ(FirstDefectDataFile(folder.path()), name);
    write(row, DataFiles[row].bytes);
  }
}

}  // namespace
