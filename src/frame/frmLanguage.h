#pragma once

#include "frame/LanguageTexts.h"
#include "toolkit/mForms.h"
#include "ui_frmLanguage.h"

/// Edits the pairs of texts in lang.dat, for whoever translates the program; no menu leads to it.
class frmLanguage : public DialogForm, public Ui::frmLanguage {
  Q_OBJECT

 public:
  frmLanguage();
  void Load() override;

 private:
  void cmdNavigation_Click(int index);

  LanguageTexts texts_;
};
