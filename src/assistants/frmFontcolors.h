#pragma once

#include "toolkit/mForms.h"
#include "ui_frmFontcolors.h"

/// The palette that drops down from the colour field of the format strip.
class frmFontcolors : public DialogForm, public Ui::frmFontcolors {
  Q_OBJECT

 public:
  frmFontcolors();
  void Load() override;

 private:
  void Take(const QColor &colour);
  void cmdOtherColor_Click();
};

/// Shows the palette below the colour field.
void ShowFontColors();
