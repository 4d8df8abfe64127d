#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// The program folder and the runtime folder are private to the process, so tests run in parallel
// and change their preferences freely.
int main(int argc, char **argv) {
  static QTemporaryDir folder;  // outlives the instance lock in it
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("TAGWRIGHT_FOLDER", QFile::encodeName(folder.path()));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
  qputenv("XDG_CACHE_HOME", QFile::encodeName(folder.filePath(QStringLiteral("cache"))));
  const QDir delivered(QStringLiteral(TAGWRIGHT_DATA_DIR));
  for (const QString &name :
       delivered.entryList({QStringLiteral("*.dat"), QStringLiteral("*.htf")})) {
    QFile::copy(delivered.filePath(name), folder.filePath(name));
  }
  // Beside the program a developer's own settings may lie.
  const QString preferences = folder.filePath(QStringLiteral("preferences.dat"));
  QFile::remove(preferences);
  QFile::copy(QStringLiteral(TAGWRIGHT_DELIVERED_PREFERENCES), preferences);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  application.setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
