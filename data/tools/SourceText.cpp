#include "SourceText.h"

#include <QFile>
#include <QStringDecoder>

using Qt::StringLiterals::operator""_s;

SourceError::SourceError(const SourceText &source, qsizetype line, const QString &message)
    : std::runtime_error(u"%1:%2: %3"_s.arg(source.file).arg(line).arg(message).toStdString()) {}

SourceText ReadSource(const QString &path) {
  SourceText source{path, {}};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw SourceError(source, 0, file.errorString());
  const QByteArrayList lines = file.readAll().split('\n');
  for (const QByteArray &line : lines) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(line);
    if (utf8.hasError()) throw SourceError(source, source.lines.size() + 1, u"not UTF-8"_s);
    if (text.endsWith(u'\r')) text.chop(1);
    source.lines << text;
  }
  if (source.lines.last().isEmpty()) source.lines.removeLast();
  return source;
}
