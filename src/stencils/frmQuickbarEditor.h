#pragma once

#include "toolkit/mForms.h"
#include "ui_frmQuickbarEditor.h"

/// The dialog that takes entries out of the quick bar. The stencils themselves stay.
class frmQuickbarEditor : public DialogForm, public Ui::frmQuickbarEditor {
  Q_OBJECT

 public:
  frmQuickbarEditor();
  void Load() override;

 private:
  void ReloadQuickbarEditorList();
  int SelectedPosition() const;
  void cmdDeleteThisEntry_Click();
};
