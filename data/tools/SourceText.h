#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

/// A text file that a person edits, from which a delivered file is made.
struct SourceText {
  QString file;       ///< as it is named in messages
  QStringList lines;  ///< without line ends; line 1 is lines[0]
};

/// A source that breaks a rule, and where: what() is "file:line: message", a form that editors and
/// build tools jump to.
class SourceError : public std::runtime_error {
 public:
  SourceError(const SourceText &source, qsizetype line, const QString &message);
};

/// Reads a UTF-8 file. Throws SourceError if it can't be opened or isn't UTF-8.
SourceText ReadSource(const QString &path);
