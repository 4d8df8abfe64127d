#pragma once

#include <QString>
#include <optional>

/// Plain text files in the ANSI code page.
namespace TextFile {

/// Characters that a line of a document may have at the most; the toolkit's layout overflows
/// beyond.
constexpr qsizetype LongestLine = 4'000'000;

/// Length of the longest line in characters. CR LF, a lone CR and a lone LF end a line.
qsizetype LongestLineIn(QStringView text);

/// Reads a file whole, its line ends as they stand. Nothing if it can't be read, isn't a regular
/// file, or has a line longer than LongestLine.
std::optional<QString> Read(const QString &path);

}  // namespace TextFile
