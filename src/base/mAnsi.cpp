#include "base/mAnsi.h"

#include <array>

namespace mAnsi {
namespace {

/// Bytes 80 to 9F; every other byte is the character of its own number.
constexpr std::array<char16_t, 32> middle = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> characters = [] {
  std::array<char16_t, 256> table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    table[byte] = byte >= 0x80 && byte < 0xA0 ? middle[byte - 0x80] : char16_t(byte);
  }
  return table;
}();

/// The byte of each UTF-16 unit, 0 for those that have none (and for U+0000). Flat, since documents
/// of 100 MB go through it; only the few cache lines of the characters in use are ever touched.
constexpr std::array<unsigned char, 0x10000> byteOfUnit = [] {
  std::array<unsigned char, 0x10000> table{};
  for (std::size_t byte = 0; byte < characters.size(); ++byte) {
    table[characters[byte]] = static_cast<unsigned char>(byte);
  }
  return table;
}();

constexpr bool HasByte(char16_t unit) {
  return byteOfUnit[unit] != 0 || unit == 0;
}

}  // namespace

QString FromAnsi(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  QChar *out = text.data();
  for (const char byte : bytes) *out++ = characters[static_cast<unsigned char>(byte)];
  return text;
}

QByteArray ToAnsi(QStringView text) {
  QByteArray bytes(text.size(), Qt::Uninitialized);
  char *out = bytes.data();
  const char16_t *end = text.utf16() + text.size();
  for (const char16_t *at = text.utf16(); at < end; ++at) {
    if (HasByte(*at)) {
      *out++ = static_cast<char>(byteOfUnit[*at]);
      continue;
    }
    *out++ = '?';
    if (QChar::isHighSurrogate(*at) && at + 1 < end && QChar::isLowSurrogate(at[1])) ++at;
  }
  bytes.truncate(out - bytes.constData());
  return bytes;
}

std::optional<char> ByteOf(char16_t character) {
  if (!HasByte(character)) return std::nullopt;
  return static_cast<char>(byteOfUnit[character]);
}

bool Holds(QStringView text) {
  for (const QChar character : text) {
    if (!HasByte(character.unicode())) return false;
  }
  return true;
}

}  // namespace mAnsi
