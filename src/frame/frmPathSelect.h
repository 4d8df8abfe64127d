#pragma once

#include "toolkit/mForms.h"
#include "ui_frmPathSelect.h"

/// Picks a folder for the page of the preferences dialog that is in view, and writes it into the
/// box there. The folders are read as their nodes are opened. The process's current directory stays
/// what it is.
class frmPathSelect : public DialogForm, public Ui::frmPathSelect {
  Q_OBJECT

 public:
  frmPathSelect();
  void Load() override;

 private:
  void drvDrive_Change(const QString &drive);
  void trwPaths_Expand(QTreeWidgetItem *node);
  void ReadFolder(QTreeWidgetItem &node);
  QTreeWidgetItem *NodeFor(const QString &text, const QString &key, const QIcon &image) const;
  void cmdSelectThisPath_Click();
  void cmdCancel_Click();
};
