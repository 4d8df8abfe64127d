#pragma once

#include "toolkit/mForms.h"
#include "ui_frmImageSinglePreview.h"

/// The image that is selected in the image browser, at full size. The window is as large as the
/// image asks, also beyond the screen.
class frmImageSinglePreview : public DialogForm, public Ui::frmImageSinglePreview {
  Q_OBJECT

 public:
  frmImageSinglePreview();
  void Load() override;

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  void PlaceControls();
};
