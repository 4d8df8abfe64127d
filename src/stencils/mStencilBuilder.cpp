#include "stencils/mStencilBuilder.h"

#include <QFileInfo>
#include <QHash>

#include "base/RecordRewrite.h"
#include "base/mAnsi.h"
#include "stencils/StencilFiles.h"

namespace mStencilBuilder {

namespace {

void Run(const Pump &pump) {
  if (pump) pump();
}

bool BeginsWith(QByteArrayView key, const QString &start) {
  return !key.isEmpty() && mAnsi::FromAnsi(key).startsWith(start, Qt::CaseInsensitive);
}

void CompactStencils(const QString &stencils, const QString &scratch, const Pump &pump) {
  RecordRewrite<StencilRecord> rewrite(stencils, scratch);
  StencilFile(stencils).Scan(1, [&](qint64, const StencilRecord &record) {
    Run(pump);
    if (record.Key.TrimmedBytes().size() >= 2) rewrite.Put(record);
    return true;
  });
  rewrite.Commit();
}

// How many stencils have each key that the quick bar names; one pass over the stencils.
QHash<QByteArray, int> CountStencils(const QString &stencils, const QString &quickBar) {
  QHash<QByteArray, int> counts;
  QuickBarFile(quickBar).Scan(1, [&counts](qint64, const QuickBarRecord &entry) {
    counts.insert(entry.StencilKey.TrimmedBytes().toByteArray(), 0);
    return true;
  });
  StencilFile(stencils).Scan(1, [&counts](qint64, const StencilRecord &record) {
    const auto key = record.Key.TrimmedBytes();
    const auto counted = counts.find(QByteArray::fromRawData(key.data(), key.size()));
    if (counted != counts.end()) ++*counted;
    return true;
  });
  return counts;
}

void CompactQuickBar(const QString &stencils, const QString &quickBar, const QString &scratch,
                     const Pump &pump) {
  const auto counts = CountStencils(stencils, quickBar);
  RecordRewrite<QuickBarRecord> rewrite(quickBar, scratch);
  QuickBarFile(quickBar).Scan(1, [&](qint64, const QuickBarRecord &entry) {
    Run(pump);
    const int times = counts.value(entry.StencilKey.TrimmedBytes().toByteArray());
    for (int i = 0; i < times; ++i) rewrite.Put(entry);
    return true;
  });
  rewrite.Commit();
}

}  // namespace

void BlankSubtree(const QString &stencils, const QString &key, const Pump &pump) {
  const StencilFile file(stencils);
  file.Scan(1, [&](qint64 n, const StencilRecord &record) {
    Run(pump);
    if (!BeginsWith(record.Key.TrimmedBytes(), key)) return true;
    StencilRecord blank = record;
    blank.Header.Set({});
    blank.HtmlSource.Set({});
    blank.Description.Set({});
    blank.ParentKey.Set({});
    blank.Key.Set({});
    file.Put(n, blank);
    return true;
  });
}

void CompactSelfBuiltFiles(const QString &stencils, const QString &quickBar, const QString &scratch,
                           const Pump &pump) {
  if (QFileInfo::exists(stencils)) CompactStencils(stencils, scratch, pump);
  if (QFileInfo::exists(quickBar)) CompactQuickBar(stencils, quickBar, scratch, pump);
}

}  // namespace mStencilBuilder
