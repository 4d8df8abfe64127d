#include "base/TextFile.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "base/mAnsi.h"

namespace TextFile {

qsizetype LongestLineIn(QStringView text) {
  qsizetype longest = 0;
  qsizetype lineStart = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t c = text[i].unicode();
    if (c != u'\r' && c != u'\n') continue;
    longest = std::max(longest, i - lineStart);
    lineStart = i + 1;
  }
  return std::max(longest, text.size() - lineStart);
}

std::optional<QString> Read(const QString &path) {
  // A device or a pipe could give bytes without end, so only regular files are read.
  if (!QFileInfo(path).isFile()) return std::nullopt;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  QString text = mAnsi::FromAnsi(bytes);
  if (LongestLineIn(text) > LongestLine) return std::nullopt;
  return text;
}

}  // namespace TextFile
