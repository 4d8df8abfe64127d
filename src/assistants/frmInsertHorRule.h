#pragma once

#include "toolkit/mForms.h"
#include "ui_frmInsertHorRule.h"

/// Puts a horizontal rule into the document, in front of what is selected.
class frmInsertHorRule : public DialogForm, public Ui::frmInsertHorRule {
  Q_OBJECT

 public:
  frmInsertHorRule();

 private:
  void cmdOk_Click();
};
