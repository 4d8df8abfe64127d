#pragma once

#include <QByteArray>

#include "SourceText.h"

/// Characters of the grid, 15 in a row, and the length of sc.dat in bytes.
inline constexpr int specialCharacterCount = 235;
inline constexpr int specialCharacterBytes = 3741;

/// The text of sc.dat: a line `&name; &#code;` for each character, CR LF behind every one. The
/// source has one character a line, its html name and its number in the order of the grid; blank
/// lines and lines that begin with ";" are skipped. Throws SourceError for a name or number that
/// comes twice, a malformed line, or when count or length come out otherwise than above.
QByteArray SpecialCharacterLines(const SourceText &source);
