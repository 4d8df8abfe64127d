#pragma once

#include "toolkit/CommonDialog.h"
#include "toolkit/mForms.h"
#include "ui_frmInsertImage.h"

/// Puts an image into the document, from a file that is shown and measured, or from a typed
/// address.
class frmInsertImage : public DialogForm, public Ui::frmInsertImage {
  Q_OBJECT

 public:
  frmInsertImage();

  CommonDialog clgOpenImage;

 private:
  void cmdSelectImage_Click();
  void optImageSource_Click(bool url);
  void txtReferenceToURL_Change();
  void SetSettingsEnabled(bool enabled);
  void SetMeasuresEnabled(bool enabled);
  QSize PictureSize() const;
  void cmdOk_Click();
};
