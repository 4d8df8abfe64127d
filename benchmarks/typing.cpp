#include <QPlainTextEdit>

#include "Compare.h"
#include "Keys.h"
#include "frame/mPublic.h"

namespace {

constexpr qsizetype large = 10 << 20;
constexpr qsizetype small = 100 << 10;
constexpr int positions = 2000;

// Microseconds to set the caret to a position of the text and ask for it again.
double MoveCaret(RichTextBox &box) {
  const qsizetype length = box.TextLength();
  qsizetype sum = 0;
  const double seconds = Seconds([&] {
    for (int i = 0; i < positions; ++i) {
      box.SetSelStart(length / positions * i);
      sum += box.SelStart() + box.GetLineFromChar(length - i);
    }
  });
  return sum > 0 ? seconds * 1e6 / positions : 0;
}

}  // namespace

void BenchTyping() {
  RichTextBox &smallBox = OpenDocument(Page(small));
  RichTextBox &largeBox = OpenDocument(Page(large));
  QPlainTextEdit &bare = OpenBare(Page(large));
  Compare(
      QStringLiteral("a key in 10 MB against the bare widget's"), QStringLiteral("ms"), 1.5,
      [&] { return TimeOfKey(largeBox); }, [&] { return TimeOfKey(bare); });
  mPublic::TagHighlight = {0, 1, 1, 1};
  Compare(
      QStringLiteral("the same with all highlights on"), QStringLiteral("ms"), 1.5,
      [&] { return TimeOfKey(largeBox); }, [&] { return TimeOfKey(bare); });
  mPublic::TagHighlight = {};
  Compare(
      QStringLiteral("a key in 10 MB against one in 100 kB"), QStringLiteral("ms"), 1.5,
      [&] { return TimeOfKey(largeBox); }, [&] { return TimeOfKey(smallBox); });
  // A hundred times the lines: two searches in trees of that many more levels, never a walk.
  Compare(
      QStringLiteral("position to caret and back, 10 MB against 100 kB"), QStringLiteral("us"), 3,
      [&] { return MoveCaret(largeBox); }, [&] { return MoveCaret(smallBox); });
  for (QPlainTextEdit *box : std::initializer_list<QPlainTextEdit *>{&smallBox, &largeBox, &bare}) {
    Close(*box);
  }
}
