#include <QMouseEvent>

#include "Compare.h"
#include "Keys.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr int moves = 400;

// Milliseconds a move of the pointer, what it has changed drawn.
double Move(QWidget &widget, const std::function<QPointF(int)> &place) {
  return Seconds([&] {
           for (int i = 0; i < moves; ++i) {
             const QPointF at = place(i);
             QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
             QCoreApplication::sendEvent(&widget, &move);
             DoEvents();
           }
         }) *
         1000 / moves;
}

}  // namespace

void BenchMoves() {
  RichTextBox &box = OpenDocument(Page(1 << 20));
  TurnTo(box);
  ToolStrip &strip = *Default<mdiMain>()->picLeft;
  Measure(QStringLiteral("a move over a strip, from button to button"), QStringLiteral("ms"), 1,
          [&] { return Move(strip, [](int i) { return QPointF(12, i * 24 % 240 + 12); }); });
  Measure(QStringLiteral("a move over the text"), QStringLiteral("ms"), 1,
          [&] { return Move(*box.viewport(), [](int i) { return QPointF(i % 300, 50); }); });
  Close(box);
}
