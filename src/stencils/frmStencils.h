#pragma once

#include "toolkit/mForms.h"
#include "ui_frmStencils.h"

/// A browser of the standard library in a window of its own.
class frmStencils : public DialogForm, public Ui::frmStencils {
  Q_OBJECT

 public:
  frmStencils();
  void Load() override;
  void Unloaded() override;

 private:
  void cmdMarker_Click();
  void cmdOk_Click();
};
