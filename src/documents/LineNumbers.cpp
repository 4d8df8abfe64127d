#include "documents/LineNumbers.h"

QString LineNumberText(int first, int count) {
  QString text;
  for (int number = first; number < first + count; ++number) {
    text += QString::number(number) + QLatin1String(":\n");
  }
  return text;
}
