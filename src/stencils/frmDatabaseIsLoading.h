#pragma once

#include "toolkit/mForms.h"
#include "ui_frmDatabaseIsLoading.h"

/// The small window that stands while the stencil trees are filled.
class frmDatabaseIsLoading : public DialogForm, public Ui::frmDatabaseIsLoading {
  Q_OBJECT

 public:
  frmDatabaseIsLoading();
  void Load() override;

 protected:
  void paintEvent(QPaintEvent *event) override;
};
