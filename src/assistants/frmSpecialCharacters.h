#pragma once

#include "toolkit/mForms.h"
#include "ui_frmSpecialCharacters.h"

/// Shows the special characters in a grid and collects their codes for the document.
class frmSpecialCharacters : public DialogForm, public Ui::frmSpecialCharacters {
  Q_OBJECT

 public:
  frmSpecialCharacters();

 private:
  void Pick(int cell, Qt::MouseButton button);
  void cmdInsertCodeIntoEditor_Click();
};
