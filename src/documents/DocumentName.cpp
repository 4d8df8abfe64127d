#include "documents/DocumentName.h"

#include "base/mText.h"

namespace DocumentName {

const QString Unsaved = QStringLiteral("<unsaved>");

bool IsUnsaved(const QString &caption) {
  return mText::Trim(caption) == Unsaved;
}

bool IsJava(const QString &caption) {
  return mText::Right(mText::Trim(caption), 5) == QLatin1String(".java");
}

QString GroupKey(const QString &caption) {
  const QString name = mText::Trim(caption);
  const QString lastFour = mText::Right(name, 4);
  if (IsJava(caption)) return QStringLiteral("aabb");
  if (mText::Right(name, 5) == QLatin1String(".html") || lastFour == QLatin1String(".htm")) {
    return QStringLiteral("aaaa");
  }
  if (lastFour == QLatin1String("ved>")) return QStringLiteral("aacc");
  return QStringLiteral("aadd");
}

}  // namespace DocumentName
