#pragma once

#include <QStringList>

#include "toolkit/mForms.h"
#include "ui_frmQuickBar.h"

/// The small window above the main window that inserts a favourite stencil into the active
/// document. It reads the quick bar once; what changes later shows when it is opened again.
class frmQuickBar : public DialogForm, public Ui::frmQuickBar {
  Q_OBJECT

 public:
  frmQuickBar();
  void Load() override;

  /// Shows the window, and selects the first entry if there are others to choose from.
  static void Open();

 private:
  void cmdPaste_Click();

  /// The keys of all entries. An item of the list counts by its position, which goes astray behind
  /// an entry whose stencil is gone, since that one has no item.
  QStringList QuickBarEntries;
};
