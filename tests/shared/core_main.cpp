#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

/// Runs the tests that need no window. The program folder of the process is an empty temporary one,
/// so nothing that looks there reads or makes files of the person who runs the tests.
int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  const QTemporaryDir programFolder;
  qputenv("TAGWRIGHT_FOLDER", QFile::encodeName(programFolder.path()) + '/');
  return RUN_ALL_TESTS();
}
