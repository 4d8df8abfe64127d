#include "java/CompileCommand.h"

#include <utility>

CompileCommand CompileCommand::For(const QString &compiler, const QString &output,
                                   const QString &source, QByteArrayView sourceBytes,
                                   QProcessEnvironment environment) {
  const QString options = QStringLiteral("JDK_JAVAC_OPTIONS");
  const QString allCategories = QStringLiteral("LC_ALL");
  const QLatin1String encoding(sourceBytes.isValidUtf8() ? "UTF-8" : "windows-1252");
  // The compiler takes a blank at the beginning for an empty option.
  QString all = environment.value(options).trimmed();
  if (!all.isEmpty()) all += u' ';
  all += QLatin1String("-encoding ") + encoding + QLatin1String(" -Xlint:none -Xmaxerrs 10000");
  environment.insert(options, all);
  // Names of files and letters of the source stay as the user's locale has them.
  if (const QString locale = environment.value(allCategories); !locale.isEmpty()) {
    environment.insert(QStringLiteral("LC_CTYPE"), locale);
  }
  environment.remove(allCategories);
  environment.remove(QStringLiteral("LANGUAGE"));
  environment.insert(QStringLiteral("LC_MESSAGES"), QStringLiteral("C"));
  return {ProgramLine::Split(compiler + QLatin1String(" -Xstdout ") + output + u' ' + source),
          std::move(environment)};
}
