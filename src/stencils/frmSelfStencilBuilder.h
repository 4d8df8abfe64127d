#pragma once

#include "stencils/StencilRecord.h"
#include "toolkit/mForms.h"
#include "ui_frmSelfStencilBuilder.h"

/// The editor of the self-built stencils. Making its default instance loads the tree and shows it,
/// modally; there is nothing else to call. The main window's tree follows when it closes.
class frmSelfStencilBuilder : public DialogForm, public Ui::frmSelfStencilBuilder {
  Q_OBJECT

 public:
  frmSelfStencilBuilder();
  void Load() override;
  bool QueryUnload(UnloadMode mode) override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  qint64 ReloadBuilderTree();
  bool ReloadAndReselect();
  void Reselect(int ordinal);
  void EnableChanges(bool enabled);
  void FillTexts(StencilRecord &record) const;
  void trwStencils_Click();
  void cboHirarchieSteps_Click();
  void cmdSave_Click();
  void cmdOverwriteSelection_Click();
  void cmdDelete_Click();
  void cmdAddtoQuick_Click();
  void cmdOk_Click();

  int lastClicked_ = 0;  ///< ordinal of the node last clicked, 0 before the first click
};
