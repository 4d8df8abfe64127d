#include "frame/CommandLine.h"

#include <QFile>
#include <QStringList>

QString CommandLineText(int argc, const char *const *argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words << QFile::decodeName(argv[i]);
  return words.join(QLatin1Char(' '));
}
