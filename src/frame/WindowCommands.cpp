#include "frame/WindowCommands.h"

#include <QMdiArea>
#include <QPointer>
#include <vector>

#include "documents/mEditors.h"
#include "frame/WindowPlacement.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"
#include "toolkit/twips.h"

namespace WindowCommands {

namespace {

using WindowPlacement::Placement;

// Twips by which the tile commands leave more room at the lower and the right edge.
constexpr int tileMargin = 10;
constexpr int normalHeight = twips(11130);
constexpr int normalWidth = twips(15360);

// The open windows in the order of their slots. All are taken down before one is touched, since
// handlers that run in the middle may walk with the same counter.
std::vector<QPointer<frmHTMLChild>> OpenEditors() {
  std::vector<QPointer<frmHTMLChild>> editors;
  mPublic::NextOpenEditor(-1);
  for (int left = mPublic::CountOpenEditors(); left > 0; --left) {
    editors.emplace_back(mEditors::aEditorWindow[mPublic::NextOpenEditor(0)]);
  }
  mPublic::NextOpenEditor(-1);
  return editors;
}

bool Stands(const QPointer<frmHTMLChild> &editor) {
  return editor && !editor->IsUnloaded();
}

// While it lives, a window that comes to the front isn't maximised for the sake of a maximised one
// that it takes the front from.
class NoneMaximizedInPassing {
 public:
  NoneMaximizedInPassing() : area_(&mEditors::Area()), before_(area_->testOption(option)) {
    area_->setOption(option);
  }
  ~NoneMaximizedInPassing() {
    if (area_) area_->setOption(option, before_);
  }
  Q_DISABLE_COPY_MOVE(NoneMaximizedInPassing)

 private:
  static constexpr auto option = QMdiArea::DontMaximizeSubWindowOnActivation;
  const QPointer<QMdiArea> area_;
  const bool before_;
};

// Every change of size pumps events, after which the window may be gone or no longer normal.
void Place(const QPointer<frmHTMLChild> &editor, const Placement &to) {
  const auto placeable = [&editor] {
    return Stands(editor) && !editor->isMaximized() && !editor->isMinimized();
  };
  if (Stands(editor) && !placeable()) editor->showNormal();
  if (placeable()) editor->move(twips(to.left), editor->y());
  if (placeable()) editor->move(editor->x(), twips(to.top));
  if (placeable()) editor->resize(editor->width(), twips(to.height));
  if (placeable()) editor->resize(twips(to.width), editor->height());
  if (placeable()) editor->PlaceText();
}

// The area knows its own size, whatever bars stand round it and however high they are.
WindowPlacement::WorkArea WorkAreaLess(int margin) {
  const QSize area = mEditors::Area().viewport()->size() * TwipsPerPixel;
  return {area.height() - margin, area.width() - margin};
}

void PlaceAll(WindowPlacement::Layout layout, int margin) {
  static int latest = 0;
  const int own = ++latest;
  DoEvents();
  const auto editors = OpenEditors();
  if (editors.empty()) return;
  const auto placements = layout(int(editors.size()), WorkAreaLess(margin));
  const NoneMaximizedInPassing guard;
  for (std::size_t i = 0; i < editors.size() && own == latest; ++i) {
    Place(editors[i], placements[i]);
  }
}

}  // namespace

void Cascade() {
  PlaceAll(WindowPlacement::Arrange, 0);
}

void TileHoricontally() {
  PlaceAll(WindowPlacement::TileHoricontally, tileMargin);
}

void TileVertitally() {
  PlaceAll(WindowPlacement::TileVertitally, tileMargin);
}

void CloseAll() {
  for (const auto &editor : OpenEditors()) {
    if (Stands(editor)) Unload(*editor);
  }
}

void AllMinimized() {
  const NoneMaximizedInPassing guard;
  for (const auto &editor : OpenEditors()) {
    if (Stands(editor)) editor->showMinimized();
  }
}

void Minimized() {
  Default<mdiMain>()->showMinimized();
}

void Maximized() {
  Default<mdiMain>()->showMaximized();
}

void NormalSize() {
  mdiMain &main = *Default<mdiMain>();
  if (main.isMinimized()) return;
  if (main.isMaximized()) main.showNormal();
  main.resize(normalWidth, normalHeight);
}

}  // namespace WindowCommands
