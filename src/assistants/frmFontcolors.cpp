#include "assistants/frmFontcolors.h"

#include <QPointer>

#include "assistants/ShowPalette.h"
#include "frame/PanelFont.h"
#include "frame/mdiMain.h"
#include "toolkit/CellGrid.h"

frmFontcolors::frmFontcolors() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  const Palette palette = Palette::Font();
  ShowPalette(*picFontColors, palette, {24, 20});
  connect(picFontColors, &CellGrid::CellDown, this,
          [this, colours = palette.colours](int cell) { Take(colours[cell - 1]); });
  connect(cmdOtherColor, &QPushButton::clicked, this, &frmFontcolors::cmdOtherColor_Click);
}

void frmFontcolors::Load() {
  SetPanelFont(*cmdOtherColor);
}

void frmFontcolors::Take(const QColor &colour) {
  const mdiMain &main = *Default<mdiMain>();
  main.picColor->setPalette(QPalette(colour));
  QPalette letter = main.picFontColor->palette();
  letter.setColor(QPalette::ButtonText, colour);
  main.picFontColor->setPalette(letter);
  Unload(*this);
}

void frmFontcolors::cmdOtherColor_Click() {
  const QPointer<frmFontcolors> self(this);
  ColourDialog &dialog = Default<mdiMain>()->cdgColorWindow;
  dialog.ShowColor();
  if (self && !IsUnloaded()) Take(dialog.Color);
}

void ShowFontColors() {
  auto *form = Default<frmFontcolors>();
  const QFrame &field = *Default<mdiMain>()->picColor;
  form->move(field.mapToGlobal(field.rect().bottomLeft()));
  form->show();
}
