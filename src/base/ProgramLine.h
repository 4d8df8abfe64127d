#pragma once

#include <QString>
#include <QStringList>
#include <functional>

/// A program and its arguments, taken from a text. There are no quotes, variables or other signs
/// with a meaning, and nothing is left out but the blanks between words.
struct ProgramLine {
  QString program;  ///< empty if the text names none
  QStringList arguments;

  /// Split at blanks; the first word is the program.
  static ProgramLine Split(const QString &text);

  /// A command that may have blanks in its program's path: the program is the shortest run of its
  /// first words that isExecutable takes, or the first word if there is none; the words behind it
  /// are its arguments.
  static ProgramLine OfCommand(const QString &text,
                               const std::function<bool(const QString &)> &isExecutable);
};
