#pragma once

#include "assistants/TableText.h"
#include "toolkit/ColourDialog.h"
#include "toolkit/mForms.h"
#include "ui_frmInsertTable.h"

/// Writes an empty table into the document. However the user closes it, it is only hidden, so that
/// it comes back with its last values.
class frmInsertTable : public DialogForm, public Ui::frmInsertTable {
  Q_OBJECT

 public:
  frmInsertTable();
  bool QueryUnload(UnloadMode mode) override;

  ColourDialog cgdTableBackgroundColor;

 private:
  void cmdSelectTableBackgroundColor_Click();
  void cmdOk_Click();
  TableText Choices() const;

  bool cancelled_ = false;  ///< since "Generate ..." was pressed
};
