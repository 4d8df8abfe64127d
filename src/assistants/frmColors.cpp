#include "assistants/frmColors.h"

#include "assistants/ColourText.h"
#include "assistants/ShowPalette.h"
#include "base/mText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"

frmColors::frmColors() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  Offer(*picColor, Palette::Web(), {12, 16});
  Offer(*picGreyScalePalette, Palette::GreyScale(), {12, 24});
  Offer(*picRainbowPalette, Palette::Rainbow(), {12, 12});
  connect(cmdOk, &QPushButton::clicked, this, &frmColors::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmColors::Offer(CellGrid &grid, const Palette &palette, QSize cellSize) {
  ShowPalette(grid, palette, cellSize);
  connect(&grid, &CellGrid::CellUp, this,
          [this, colours = palette.colours](int cell) { Select(colours[cell - 1]); });
}

void frmColors::Select(const QColor &colour) {
  picSelection->setPalette(QPalette(colour));
  txthtmlvalue->setText(u'#' + ColourText::ZeroBehind(colour.red(), colour.green(), colour.blue()));
}

void frmColors::cmdOk_Click() {
  Insertion::ReplaceSelection(mText::Trim(txthtmlvalue->text()));
  Unload(*this);
}
