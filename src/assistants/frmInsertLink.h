#pragma once

#include "toolkit/mForms.h"
#include "ui_frmInsertLink.h"

/// Offers an example of each kind of link, and puts what stands in the link field into the
/// document.
class frmInsertLink : public DialogForm, public Ui::frmInsertLink {
  Q_OBJECT

 public:
  frmInsertLink();

 private:
  void cmdOk_Click();
};
