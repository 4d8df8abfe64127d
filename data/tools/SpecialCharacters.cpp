#include "SpecialCharacters.h"

#include <QRegularExpression>
#include <QSet>

using Qt::StringLiterals::operator""_s;

QByteArray SpecialCharacterLines(const SourceText &source) {
  static const QRegularExpression form(u"^([A-Za-z][A-Za-z0-9]*) ([1-9][0-9]*)$"_s);
  QByteArray text;
  QSet<QString> seen;
  int count = 0;
  qsizetype line = 0;
  for (const QString &written : source.lines) {
    ++line;
    const QString plain = written.simplified();
    if (plain.isEmpty() || plain[0] == u';') continue;
    const QRegularExpressionMatch match = form.match(plain);
    if (!match.hasMatch()) throw SourceError(source, line, u"not a name and a number"_s);
    for (const QString &word : {match.captured(1), match.captured(2)}) {
      if (seen.contains(word)) throw SourceError(source, line, u"%1 comes twice"_s.arg(word));
      seen.insert(word);
    }
    text += u"&%1; &#%2;\r\n"_s.arg(match.captured(1), match.captured(2)).toLatin1();
    ++count;
  }
  if (count != specialCharacterCount || text.size() != specialCharacterBytes) {
    throw SourceError(source, line,
                      u"%1 characters in %2 bytes, must be %3 in %4"_s.arg(count)
                          .arg(text.size())
                          .arg(specialCharacterCount)
                          .arg(specialCharacterBytes));
  }
  return text;
}
