#pragma once

#include "toolkit/mForms.h"
#include "ui_frmSelectLanguage.h"

/// Asks for the language of the program's texts. As long as there is one translation only, loading
/// it chooses English and closes it at once.
class frmSelectLanguage : public DialogForm, public Ui::frmSelectLanguage {
  Q_OBJECT

 public:
  frmSelectLanguage();
  void Load() override;

 private:
  void cmdLanguage_Click(int index);
};
