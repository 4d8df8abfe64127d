#include "stencils/QuickBar.h"

#include <QHash>

#include "base/RecordRewrite.h"
#include "base/mAnsi.h"
#include "stencils/StencilFiles.h"

namespace QuickBar {

Adding Add(const QString &quickBar, const QString &key) {
  if (key.isEmpty()) return Adding::Nothing;
  const QuickBarFile file(quickBar);
  if (file.Count() == Margin) return Adding::Full;
  if (Keys(quickBar).contains(key)) return Adding::Present;
  QuickBarRecord entry;
  entry.StencilKey.Set(key);
  file.Append(entry);
  return Adding::Added;
}

QStringList Keys(const QString &quickBar) {
  QStringList keys;
  QuickBarFile(quickBar).Scan(1, [&keys](qint64, const QuickBarRecord &entry) {
    keys << entry.StencilKey.Trimmed();
    return true;
  });
  return keys;
}

QStringList Headers(const QString &stencils, const QStringList &keys) {
  QHash<QByteArray, QString> headers;  // null until found
  for (const QString &key : keys) headers.insert(mAnsi::ToAnsi(key), QString());
  qsizetype missing = headers.size();
  StencilFile(stencils).Scan(1, [&](qint64, const StencilRecord &record) {
    const auto key = record.Key.TrimmedBytes();
    const auto wanted = headers.find(QByteArray::fromRawData(key.data(), key.size()));
    if (wanted == headers.end() || !wanted->isNull()) return true;
    *wanted = record.Header.Trimmed();
    if (wanted->isNull()) *wanted = QLatin1String("");
    return --missing > 0;
  });
  QStringList found;
  for (const QString &key : keys) {
    const QString header = headers.value(mAnsi::ToAnsi(key));
    if (!header.isNull()) found << header;
  }
  return found;
}

bool Remove(const QString &quickBar, const QString &scratch, const QString &key) {
  RecordRewrite<QuickBarRecord> rewrite(quickBar, scratch);
  QuickBarFile(quickBar).Scan(1, [&](qint64, const QuickBarRecord &entry) {
    if (entry.StencilKey.Trimmed() != key) rewrite.Put(entry);
    return true;
  });
  return rewrite.Commit();
}

}  // namespace QuickBar
