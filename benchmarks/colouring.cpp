#include <QPlainTextEdit>
#include <QTextBlock>

#include "Compare.h"
#include "Keys.h"
#include "frame/mPublic.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr qsizetype large = 10 << 20;
constexpr qsizetype small = 200 << 10;
constexpr int keys = 60;

// A page of lines of 30 tags, whose body ends at its last line.
QByteArray TagPage(qsizetype bytes) {
  const QByteArray line = "<p>" + QByteArray("<b>word</b> and ").repeated(14) + "</p>\r\n";
  QByteArray page = "<html>\r\n<head>\r\n<title>page</title>\r\n</head>\r\n<body>\r\n";
  while (page.size() < bytes) page += line;
  return page + "</body>";
}

// Milliseconds a key that leaves its line in the middle of the text, the pass and the drawing of
// what it has changed included.
double LeaveLines(QPlainTextEdit &box, Qt::Key key) {
  TurnTo(box);
  QTextCursor cursor = box.textCursor();
  cursor.setPosition(
      box.document()->findBlockByNumber(box.document()->blockCount() / 2).position() + 40);
  box.setTextCursor(cursor);
  DoEvents();
  return Seconds([&box, key] {
           for (int i = 0; i < keys; ++i)
             PressKey(box, key, key == Qt::Key_Return ? QStringLiteral("\r") : QString());
         }) *
         1000 / keys;
}

}  // namespace

void BenchColouring() {
  RichTextBox &smallBox = OpenDocument(TagPage(small));
  RichTextBox &largeBox = OpenDocument(TagPage(large));
  QPlainTextEdit &bare = OpenBare(TagPage(large));
  mPublic::TagHighlight = {0, 1, 1, 1};
  const std::pair<Qt::Key, const char *> named[] = {
      {Qt::Key_Return, "Return"}, {Qt::Key_Up, "Up"}, {Qt::Key_Down, "Down"}};
  for (const auto &[key, name] : named) {
    Compare(
        QStringLiteral("%1, coloured: 10 MB against 200 kB").arg(QLatin1String(name)),
        QStringLiteral("ms"), 1.5, [&, key = key] { return LeaveLines(largeBox, key); },
        [&, key = key] { return LeaveLines(smallBox, key); });
    CompareAbove(
        QStringLiteral("%1, coloured: 10 MB against the bare key").arg(QLatin1String(name)),
        QStringLiteral("ms"), 2, [&, key = key] { return LeaveLines(largeBox, key); },
        [&, key = key] { return LeaveLines(bare, key); });
  }
  mPublic::TagHighlight = {};
  for (QPlainTextEdit *box : std::initializer_list<QPlainTextEdit *>{&smallBox, &largeBox, &bare}) {
    Close(*box);
  }
}
