#include <QTemporaryDir>
#include <algorithm>

#include "Compare.h"
#include "Keys.h"
#include "documents/Journal.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr qsizetype large = 10 << 20;

// Typing rests: the longest turn of the event loop until everything is on the disk.
double LongestTurn(Journal &journal) {
  QMetaObject::invokeMethod(journal.timRest, "timeout");
  double longest = 0;
  while (journal.IsBusy()) {
    longest = std::max(longest, 1000 * Seconds([] { DoEvents(); }));
  }
  return longest;
}

}  // namespace

void BenchJournal() {
  const QTemporaryDir folder;
  RichTextBox &unkept = OpenDocument(Page(large));
  Journal journal(folder.path());
  RichTextBox &kept = OpenDocument(Page(large));
  Compare(
      QStringLiteral("a key in 10 MB with the journal against without"), QStringLiteral("ms"), 1.1,
      [&kept] { return TimeOfKey(kept); }, [&unkept] { return TimeOfKey(unkept); });
  const auto longestTurnAfter = [&](const QString &text) {
    return [&, text] {
      journal.WriteNow();
      kept.SetSelText(text);
      DoEvents();
      return LongestTurn(journal);
    };
  };
  Measure(QStringLiteral("longest turn while a key's edit is written"), QStringLiteral("ms"), 10,
          longestTurnAfter(QStringLiteral("x")));
  // A text too large for one edit has the whole document written anew.
  Measure(QStringLiteral("longest turn while all of 10 MB is written"), QStringLiteral("ms"), 10,
          longestTurnAfter(QString(100'000, u'x') + u'\n'));
  for (RichTextBox *box : {&unkept, &kept}) Close(*box);
}
