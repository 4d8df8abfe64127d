#include "base/ForeignText.h"

#include <QList>

#include "base/mAnsi.h"

namespace ForeignText {

QString NumericReference(char32_t codePoint) {
  return QStringLiteral("&#%1;").arg(uint(codePoint));
}

QString JavaEscape(char32_t codePoint) {
  QString escaped;
  for (const QChar unit : QString::fromUcs4(&codePoint, 1)) {
    escaped += QStringLiteral("\\u%1").arg(uint(unit.unicode()), 4, 16, QLatin1Char('0'));
  }
  return escaped;
}

QString Replaced(const QString &text, const Replacement &replacement) {
  if (mAnsi::Holds(text)) return text;
  QString result;
  result.reserve(text.size());
  for (const uint codePoint : text.toUcs4()) {
    if (codePoint == 0x2028 || codePoint == 0x2029) {
      result += QLatin1Char('\n');
    } else if (codePoint <= 0xFFFF && mAnsi::ByteOf(char16_t(codePoint))) {
      result += QChar(char16_t(codePoint));
    } else {
      result += replacement(codePoint);
    }
  }
  return result;
}

}  // namespace ForeignText
