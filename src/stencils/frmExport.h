#pragma once

#include <QByteArray>
#include <array>

#include "toolkit/CommonDialog.h"
#include "toolkit/mForms.h"
#include "ui_frmExport.h"

/// The dialog that appends the self-built stencils to a text file, a row for each.
class frmExport : public DialogForm, public Ui::frmExport {
  Q_OBJECT

 public:
  frmExport();

  /// Its last file name, trimmed, is what lblPath shows after each call, also after Cancel.
  CommonDialog cdgExportPath;

 private:
  void cmdSelectPath_Click();
  void cmdOk_Click();
  QByteArray Separator() const;
  bool AllColumnsTicked() const;
  bool AppendStencils(const QByteArray &separator);

  std::array<QCheckBox *, 4> chkWhichDataColumns_;
};
