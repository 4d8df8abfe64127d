// Files of stencils: look-ups, search, export, the next key, and taking a subtree away.

#include "Fuzz.h"
#include "stencils/ExportRow.h"
#include "stencils/StencilFiles.h"
#include "stencils/StencilSearch.h"
#include "stencils/mStencilBuilder.h"

namespace {
constexpr qint64 lookedUp = 6;  // records; each look-up reads the file
}

void Try(Input &input) {
  const QString path = Path(StencilFiles::SelfBuilt);
  QString key = TakeText(input, 100);
  const QString phrase = TakeText(input, 20);
  const auto cutOff = input.ConsumeIntegralInRange<qsizetype>(0, sizeof(StencilRecord));
  QByteArray bytes;
  while (input.remaining_bytes() > 0 && bytes.size() < 100'000) {
    bytes += TakeRecord<StencilRecord>(input, {100, 1500, 100, 750, 100, 100});
  }
  bytes.chop(std::min(cutOff, bytes.size()));
  PutFile(path, bytes);

  qint64 records = 0;
  StencilFile(path).Scan(1, [&](qint64 n, const StencilRecord &record) {
    Require(n == ++records, "records are counted from 1");
    if (n > lookedUp) return true;
    Require(ExportRow(record, ";").size() >= 108, "a row has its columns");
    const QString next = StencilFiles::NextFreeStencilKey(path, record.Key.Trimmed());
    Require(next == StencilFiles::NoKey || !StencilFiles::FindStencil(path, next),
            "the next key is free");
    const auto found = StencilFiles::FindStencil(path, record.Key.Trimmed());
    Require(found && found->Key.Trimmed() == record.Key.Trimmed(), "each key is found");
    return true;
  });
  Require(records == StencilFiles::StencilCount(path), "all records are scanned");
  for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
    const auto goOn = [] { return true; };
    const auto hit = SearchStencils(path, phrase, sensitivity, 1, goOn);
    if (hit) SearchStencils(path, phrase, sensitivity, hit->record + 1, goOn);
  }

  mStencilBuilder::BlankSubtree(path, key);
  Require(StencilFiles::StencilCount(path) == records, "blanking takes no record away");
  mStencilBuilder::CompactSelfBuiltFiles(path, Path(StencilFiles::QuickBar),
                                         Path(StencilFiles::Scratch));
  StencilFile(path).Scan(1, [&](qint64, const StencilRecord &record) {
    const QString kept = record.Key.Trimmed();
    Require(kept.size() >= 2 && !kept.startsWith(key, Qt::CaseInsensitive),
            "what was blanked is gone");
    return true;
  });
}
