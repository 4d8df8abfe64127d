#include "documents/DocumentText.h"

#include "base/mAnsi.h"
#include "base/mText.h"

QByteArray PrintedText(const QString &text) {
  static const QString lineEnd = QStringLiteral("\r\n");
  QString printed = mText::Trim(text);
  if (printed.endsWith(lineEnd)) printed.chop(lineEnd.size());
  return mAnsi::ToAnsi(printed + lineEnd);
}
