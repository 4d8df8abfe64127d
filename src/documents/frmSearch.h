#pragma once

#include "toolkit/mForms.h"
#include "ui_frmSearch.h"

/// The small dialog that finds a text in the active document, one hit for each press of its button,
/// from the top down.
class frmSearch : public DialogForm, public Ui::frmSearch {
  Q_OBJECT

 public:
  frmSearch();
  void Load() override;
  void Unloaded() override;

 private:
  void cmdSearch_Click();

  /// Position of the last hit; where a search begins is one behind it.
  qsizetype lastHit_ = 1;
};
