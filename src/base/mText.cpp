#include "base/mText.h"

#include <QByteArray>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace mText {
namespace {

constexpr char16_t blank = u' ';

/// Significant digits of a number written as text.
constexpr int numberDigits = 15;

/// Walks over a text as if it had no blanks.
class NumberReader {
 public:
  explicit NumberReader(QStringView text) : text_(text) { SkipBlanks(); }

  /// The character in front, 0 at the end and for what no number contains.
  char Peek() const {
    return at_ < text_.size() && text_[at_] <= u'~' ? char(text_[at_].unicode()) : '\0';
  }
  void Next() {
    ++at_;
    SkipBlanks();
  }
  char Take() {
    const char taken = Peek();
    Next();
    return taken;
  }
  bool AtDigit() const { return Peek() >= '0' && Peek() <= '9'; }
  bool AtSign() const { return Peek() == '+' || Peek() == '-'; }
  /// Whether one of the letters, given in upper case, is in front.
  bool AtLetter(char one, char other) const {
    const char upper = Peek() >= 'a' && Peek() <= 'z' ? char(Peek() - 'a' + 'A') : Peek();
    return upper == one || upper == other;
  }

 private:
  void SkipBlanks() {
    while (at_ < text_.size() && text_[at_] == blank) ++at_;
  }

  QStringView text_;
  qsizetype at_ = 0;
};

/// What stands behind the "&".
double HexOrOctal(NumberReader reader) {
  const bool hex = reader.AtLetter('H', 'H');
  if (!hex && !reader.AtLetter('O', 'O')) return 0;
  reader.Next();
  quint64 value = 0;
  int digits = 0;
  for (; value <= std::numeric_limits<quint32>::max(); ++digits) {
    const char digit = reader.Peek();
    if (digit >= '0' && digit <= (hex ? '9' : '7')) {
      value = value * (hex ? 16 : 8) + quint64(digit - '0');
    } else if (hex && ((digit >= 'A' && digit <= 'F') || (digit >= 'a' && digit <= 'f'))) {
      value = value * 16 + quint64((digit & 0x0F) + 9);
    } else {
      const bool word = hex ? digits <= 4 : value <= std::numeric_limits<quint16>::max();
      return word ? qint16(value) : qint32(value);
    }
    reader.Next();
  }
  return 0;
}

}  // namespace

QString Trim(QStringView text) {
  while (text.startsWith(blank)) text = text.sliced(1);
  while (text.endsWith(blank)) text.chop(1);
  return text.toString();
}

double Val(QStringView text) {
  NumberReader reader(text);
  if (reader.Peek() == '&') {
    reader.Next();
    return HexOrOctal(reader);
  }
  const bool negative = reader.Peek() == '-';
  if (reader.AtSign()) reader.Next();
  QByteArray number;
  while (reader.AtDigit()) number += reader.Take();
  if (reader.Peek() == '.') {
    number += reader.Take();
    while (reader.AtDigit()) number += reader.Take();
  }
  if (reader.AtLetter('E', 'D')) {
    reader.Next();
    QByteArray exponent("e");
    if (reader.AtSign()) exponent += reader.Take();
    if (reader.AtDigit()) {
      while (reader.AtDigit()) exponent += reader.Take();
      number += exponent;
    }
  }
  double value = 0;
  const auto result = std::from_chars(number.cbegin(), number.cend(), value);
  if (result.ec != std::errc() || !std::isfinite(value)) return 0;
  return negative ? -value : value;
}

QString NumberText(double number) {
  if (number == 0 || !std::isfinite(number)) return QStringLiteral("0");
  const QByteArray form = QByteArray::number(std::abs(number), 'e', numberDigits - 1);
  const qsizetype mark = form.indexOf('e');
  const int exponent = form.sliced(mark + 1).toInt();
  QByteArray digits = form.first(mark).replace(".", "");
  while (digits.size() > 1 && digits.endsWith('0')) digits.chop(1);
  if (exponent >= numberDigits || exponent < -numberDigits) {
    if (digits.size() > 1) digits.insert(1, '.');
    digits += form.sliced(mark).toUpper();
  } else if (exponent < 0) {
    digits.prepend("0." + QByteArray(-exponent - 1, '0'));
  } else if (digits.size() > exponent + 1) {
    digits.insert(exponent + 1, '.');
  } else {
    digits += QByteArray(exponent + 1 - digits.size(), '0');
  }
  if (number < 0) digits.prepend('-');
  return QString::fromLatin1(digits);
}

QString Str(double number) {
  const QString text = NumberText(number);
  return text.startsWith(u'-') ? text : u' ' + text;
}

qsizetype InStr(qsizetype start, QStringView text, QStringView sought,
                Qt::CaseSensitivity sensitivity) {
  if (start < 1 || start > text.size() + 1) return 0;
  return text.indexOf(sought, start - 1, sensitivity) + 1;
}

QString Mid(QStringView text, qsizetype start, qsizetype length) {
  if (start < 1 || start > text.size() || length <= 0) return {};
  return text.sliced(start - 1, std::min(length, text.size() - start + 1)).toString();
}

QString Mid(QStringView text, qsizetype start) {
  return Mid(text, start, text.size());
}

QString Left(QStringView text, qsizetype length) {
  return Mid(text, 1, length);
}

QString Right(QStringView text, qsizetype length) {
  return text.last(std::clamp<qsizetype>(length, 0, text.size())).toString();
}

QString ReplaceAllText(QStringView text, QStringView find, QStringView replacement) {
  QString result = text.toString();
  if (find.isEmpty()) return result;
  qsizetype step = std::max<qsizetype>(1, replacement.size() - 1);
  // A single character that the replacement ends in would be found in it over and over.
  if (find.size() == 1 && replacement.endsWith(find, Qt::CaseInsensitive)) {
    step = replacement.size();
  }
  for (qsizetype position = InStr(1, result, find, Qt::CaseInsensitive); position > 0;
       position = InStr(position + step, result, find, Qt::CaseInsensitive)) {
    result.replace(position - 1, find.size(), replacement.data(), replacement.size());
    qsizetype end = result.size();
    while (end > position - 1 + replacement.size() && result[end - 1] == blank) --end;
    result.truncate(end);
  }
  return result;
}

qint16 CountOf(QStringView text) {
  const qint64 count = RoundToEven(Val(text));
  const bool fits = count >= 0 && count <= std::numeric_limits<qint16>::max();
  return fits ? qint16(count) : qint16(0);
}

qint64 RoundToEven(double number) {
  if (std::isnan(number)) return 0;
  // The double nearest to the largest qint64 lies just beyond it.
  constexpr double beyond = 9223372036854775808.0;
  if (number >= beyond) return std::numeric_limits<qint64>::max();
  if (number < -beyond) return std::numeric_limits<qint64>::min();
  return qint64(std::nearbyint(number));
}

}  // namespace mText
