// The quick bar over a file of stencils: its keys, adding, taking away, and the compaction of both.

#include <QFile>

#include "Fuzz.h"
#include "stencils/QuickBar.h"
#include "stencils/StencilFiles.h"
#include "stencils/mStencilBuilder.h"

void Try(Input &input) {
  const QString stencils = Path(StencilFiles::SelfBuilt);
  const QString bar = Path(StencilFiles::QuickBar);
  const QString scratch = Path(StencilFiles::Scratch);
  const QString key = TakeText(input, 120);
  QByteArray library;
  for (int records = input.ConsumeIntegralInRange(0, 4); records > 0; --records) {
    library += TakeRecord<StencilRecord>(input, {100, 1500, 100, 750, 100, 100});
  }
  PutFile(stencils, library);
  const auto cutOff = input.ConsumeIntegralInRange<qsizetype>(0, sizeof(QuickBarRecord));
  QByteArray entries;
  while (input.remaining_bytes() > 0) entries += TakeRecord<QuickBarRecord>(input, {100});
  entries.chop(std::min(cutOff, entries.size()));
  PutFile(bar, entries);

  const QStringList before = QuickBar::Keys(bar);
  QuickBar::Headers(stencils, before);
  switch (QuickBar::Add(bar, key)) {
    case QuickBar::Adding::Added:
      Require(QuickBar::Keys(bar).size() == before.size() + 1, "one entry is added");
      break;
    case QuickBar::Adding::Present:
      Require(before.contains(key), "what is there is there");
      [[fallthrough]];
    default:
      Require(QuickBar::Keys(bar) == before, "nothing else changes the bar");
  }
  mStencilBuilder::CompactSelfBuiltFiles(stencils, bar, scratch);
  for (const QString &kept : QuickBar::Keys(bar)) {
    Require(StencilFiles::FindStencil(stencils, kept).has_value(), "an entry has its stencil");
  }
  Require(QuickBar::Remove(bar, scratch, key), "the bar is rewritten");
  Require(!QuickBar::Keys(bar).contains(key), "what was taken away is gone");
  Require(!QFile::exists(scratch), "no scratch file stays");
}
