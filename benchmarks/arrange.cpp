#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>

#include "Compare.h"
#include "documents/mEditors.h"
#include "frame/WindowCommands.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr int pumpsOfAText = 4;

void Pump(int times) {
  for (int pump = 0; pump < times; ++pump) DoEvents();
}

// A window with two bare boxes of the same texts as the editor's.
QMdiSubWindow *AddBare(QMdiArea &area, const frmHTMLChild &editor) {
  auto *client = new QWidget;
  auto *boxes = new QHBoxLayout(client);
  boxes->setContentsMargins(0, 0, 0, 0);
  boxes->setSpacing(0);
  for (const RichTextBox *like : {editor.rtfLineNumber, editor.txthtml}) {
    auto *box = new QPlainTextEdit(like->toPlainText());
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setFont(like->font());
    box->setFrameShape(QFrame::NoFrame);
    boxes->addWidget(box);
  }
  boxes->itemAt(0)->widget()->setFixedWidth(54);
  QMdiSubWindow *window = area.addSubWindow(client);
  window->show();
  return window;
}

// Sets a place in the same four steps and pumps as often as ours.
void PlaceBare(QMdiSubWindow &window, const QRect &place) {
  window.move(place.x(), window.y());
  window.move(window.x(), place.y());
  for (const QSize &size : {QSize(window.width(), place.height()), place.size()}) {
    window.resize(size);
  }
  Pump(pumpsOfAText);
}

QList<QRect> Places() {
  QList<QRect> places;
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    places << mEditors::aEditorWindow[slot]->geometry();
  }
  return places;
}

}  // namespace

void BenchArrange() {
  while (mPublic::FirstFreeSlot() != 0) mEditors::OpenWindow();
  QMdiArea area;
  area.resize(mEditors::Area().size());
  area.show();
  QList<QMdiSubWindow *> windows;
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    windows << AddBare(area, *mEditors::aEditorWindow[slot]);
  }
  WindowCommands::TileHoricontally();
  const QList<QRect> tiled = Places();
  WindowCommands::Cascade();
  const QList<QRect> arranged = Places();
  Compare(
      QStringLiteral("arranging 100 windows and tiling them"), QStringLiteral("ms"), 3,
      [] {
        return 1000 * Seconds([] {
                 WindowCommands::Cascade();
                 WindowCommands::TileHoricontally();
               });
      },
      [&] {
        return 1000 * Seconds([&] {
                 for (const QList<QRect> &places : {arranged, tiled}) {
                   Pump(1);
                   for (int i = 0; i < windows.size(); ++i) PlaceBare(*windows[i], places[i]);
                 }
               });
      });
}
