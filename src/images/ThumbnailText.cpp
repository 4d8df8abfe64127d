#include "images/ThumbnailText.h"

#include <algorithm>
#include <array>

#include "base/mText.h"

const QString notReadable = QStringLiteral("not readable");

namespace {
constexpr std::array<int, 4> nameLimits{8, 12, 25, 35};
constexpr int pathLimit = 33;
const QString points = QStringLiteral("...");
}  // namespace

QString ThumbnailName(const QString &name, int widthIndex) {
  const bool known = widthIndex >= 0 && widthIndex < int(nameLimits.size());
  const int limit = nameLimits[known ? widthIndex : 0];
  return name.size() > limit ? mText::Left(name, limit).toLower() + points : name;
}

QString InOneLine(QString name) {
  const auto breaks = [](QChar c) {
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
  };
  std::replace_if(name.begin(), name.end(), breaks, QChar(u' '));
  return name;
}

QString FileSizeText(qint64 bytes) {
  constexpr int kilobyte = 1024;
  if (bytes < kilobyte) return mText::NumberText(double(bytes)) + QStringLiteral(" bytes");
  return mText::NumberText(double(bytes) / kilobyte) + QStringLiteral(" kb");
}

QString ImageStatusText(QSize picture, qint64 bytes) {
  return QStringLiteral("Height/Width: %1x%2   Size: ").arg(picture.height()).arg(picture.width()) +
         FileSizeText(bytes);
}

QString ShownImagePath(const QString &path) {
  return path.size() > pathLimit ? points + mText::Right(path, pathLimit) : path;
}
