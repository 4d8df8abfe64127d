#pragma once

#include "assistants/Palettes.h"
#include "toolkit/mForms.h"
#include "ui_frmColors.h"

/// Turns a colour that is picked from palettes into an html value and puts it into the document.
class frmColors : public DialogForm, public Ui::frmColors {
  Q_OBJECT

 public:
  frmColors();

 private:
  void Offer(CellGrid &grid, const Palette &palette, QSize cellSize);
  void Select(const QColor &colour);
  void cmdOk_Click();
};
