#include "toolkit/FileFilter.h"

QStringList NameFilters(const QString &filter) {
  const QStringList pieces = filter.split(QLatin1Char('|'));
  QStringList names;
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    QString patterns = pieces[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    // "*.*" means every file, also one without a point in its name.
    if (patterns == QLatin1String("*.*")) patterns = QStringLiteral("*");
    names << QStringLiteral("%1 (%2)").arg(pieces[i], patterns);
  }
  return names;
}
