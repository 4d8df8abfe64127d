#pragma once

#include "toolkit/mForms.h"
#include "ui_frmStencilsSearch.h"

/// Searches the standard library for a phrase and selects each hit in the tree of frmStencils; a
/// further press goes on behind the last one.
class frmStencilsSearch : public DialogForm, public Ui::frmStencilsSearch {
  Q_OBJECT

 public:
  frmStencilsSearch();
  void Load() override;

 private:
  void cmdSearch_Click();
  void Select(const QString &key, const QString &parentKey);
  void EnableButtons(bool enabled);

  qint64 nextRecord_ = 1;  ///< where the next search begins
};
