#include "base/DataFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shared/Files.h"

TEST(DataFilesTest, TheFirstNineAreTestedByLength) {
  const QTemporaryDir folder;
  for (int row = 0; row < TestedDataFiles; ++row) {
    const QString name = QLatin1String(DataFiles[row].name);
    EXPECT_EQ(FirstDefectDataFile(folder.path()), name) << "missing";
    for (const int off : {-1, 1, 0}) {
      PutFile(folder.filePath(name), QByteArray(DataFiles[row].bytes + off, 'x'));
      EXPECT_EQ(FirstDefectDataFile(folder.path()) == name, off != 0) << qPrintable(name) << off;
    }
  }
  EXPECT_EQ(FirstDefectDataFile(folder.path()), std::nullopt) << "rows 9 and 10 may be missing";
}
