#include "assistants/SpecialCharacters.h"

#include <QFile>
#include <array>

#include "base/mAnsi.h"
#include "base/mText.h"

namespace {

// The html name of the shortest kind, "&lt;", ends with the fourth character.
constexpr int unicodeFrom = 5;

// Calls found(number, line) for the lines from 1 on until it returns false.
template <class Found>
void ForEachLine(const QString &path, Found found) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  for (int number = 1; number <= SpecialCharacters::Count && !file.atEnd(); ++number) {
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r')) line.chop(1);
    if (!found(number, mAnsi::FromAnsi(line))) return;
  }
}

}  // namespace

// The unicode name takes as many characters as stand before the second ";" in the whole line, more
// than there are: it runs to the line's end.
SpecialCharacters::Codes SpecialCharacters::Cut(const QString &line) {
  const qsizetype first = mText::InStr(1, line, u";");
  const qsizetype second = mText::InStr(first + 1, line, u";");
  const qsizetype unicode = mText::InStr(unicodeFrom, line, u"&");
  return {mText::Left(line, first), mText::Mid(line, unicode, second)};
}

std::optional<SpecialCharacters::Codes> SpecialCharacters::Read(const QString &path, int number) {
  std::optional<Codes> codes;
  ForEachLine(path, [&](int current, const QString &line) {
    if (current != number) return true;
    codes = Cut(line);
    return false;
  });
  return codes;
}

QStringList SpecialCharacters::Pictures(const QString &path) {
  QStringList pictures;
  ForEachLine(path, [&](int, const QString &line) {
    const QString code = Cut(line).unicode;
    const double value = code.startsWith(u"&#") ? mText::Val(QStringView(code).mid(2)) : 0;
    const bool known = value >= 32 && value <= double(QChar::LastValidCodePoint);
    pictures << (known ? QString::fromUcs4(std::array{char32_t(value)}.data(), 1) : QString());
    return true;
  });
  return pictures;
}
