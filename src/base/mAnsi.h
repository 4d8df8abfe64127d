#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Windows code page 1252, in which documents and record fields are stored.
///
/// Every byte has exactly one character and back: the five bytes that the code
/// page leaves open (81, 8D, 8F, 90, 9D) stand for U+0081 and so on, so a file
/// that is loaded and written again keeps its bytes whatever it held.
/// Source of the table: Unicode consortium, CP1252.TXT and bestfit1252.txt.
namespace mAnsi {

/// One character for each byte.
QString FromAnsi(QByteArrayView bytes);

/// One byte for each character of the code page; "?" for each code point outside it (a
/// surrogate pair is one code point and gives one "?").
QByteArray ToAnsi(QStringView text);

/// The byte of a character, or nothing if the code page lacks it.
std::optional<char> ByteOf(char16_t character);

/// Whether every character of the text has a byte of its own.
bool Holds(QStringView text);

}  // namespace mAnsi
