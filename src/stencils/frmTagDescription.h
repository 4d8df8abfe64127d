#pragma once

#include <optional>

#include "stencils/StencilRecord.h"
#include "toolkit/mForms.h"
#include "ui_frmTagDescription.h"

/// One stencil at large size.
class frmTagDescription : public DialogForm, public Ui::frmTagDescription {
  Q_OBJECT

 public:
  frmTagDescription();
  void Load() override;

  /// Shows the form modally with that stencil; with none the texts stay as they are.
  void Show(const std::optional<StencilRecord> &stencil);
};
