#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The characters of the special character window. Each is a line of sc.dat in the program folder:
/// two codes, each with "&" before and ";" behind, the html name first.
namespace SpecialCharacters {

constexpr int PerRow = 15;
constexpr int Count = 235;

struct Codes {
  QString html;
  QString unicode;
};

/// The two codes of a line. What is missing from it is empty.
Codes Cut(const QString &line);

/// The codes of a character from 1 to Count, read anew from the file. Nothing for another number,
/// or if the file can't be read or is too short.
std::optional<Codes> Read(const QString &path, int number);

/// What each line's character looks like, in the file's order: an empty text where a line names
/// none. At most Count.
QStringList Pictures(const QString &path);

}  // namespace SpecialCharacters
