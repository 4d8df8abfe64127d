#pragma once

#include <array>

#include "toolkit/mForms.h"
#include "ui_frmInsertList.h"

/// Writes an empty list into the document. It is hidden after that and comes back with its last
/// values; Cancel unloads it.
class frmInsertList : public DialogForm, public Ui::frmInsertList {
  Q_OBJECT

 public:
  frmInsertList();
  void Load() override;

  /// Shows the dialog with that kind of list chosen, a ListText::Kind, if a document is open.
  static void Open(int kind);

 private:
  void cmdOk_Click();

  std::array<QRadioButton *, 5> optListType_;
  std::array<QRadioButton *, 3> optBulletType_;
  std::array<QRadioButton *, 5> optNumberingStyle_;
};
