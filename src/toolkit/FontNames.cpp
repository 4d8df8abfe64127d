#include "toolkit/FontNames.h"

#include <QFontDatabase>

QStringList FontNames() {
  QStringList names;
  for (QString name : QFontDatabase::families()) {
    const qsizetype maker = name.indexOf(QStringLiteral(" ["));
    if (maker > 0 && name.endsWith(u']')) name.truncate(maker);
    names << name;
  }
  names.removeDuplicates();
  return names;
}
