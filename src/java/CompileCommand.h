#pragma once

#include <QByteArrayView>
#include <QProcessEnvironment>
#include <QString>

#include "base/ProgramLine.h"

/// How the Java compiler is started for a source file.
struct CompileCommand {
  ProgramLine line;
  QProcessEnvironment environment;

  /// The line is "COMPILER -Xstdout OUTPUT SOURCE", split at blanks wherever they stand, so a path
  /// with blanks breaks it. Whatever the compiler's options can't tell in that line goes into the
  /// environment, so that its output ends in its count of errors: the source's encoding, which is
  /// that of sourceBytes, no warnings, all errors, and messages in English.
  static CompileCommand For(const QString &compiler, const QString &output, const QString &source,
                            QByteArrayView sourceBytes, QProcessEnvironment environment);
};
