#pragma once

#include "frame/mPublic.h"
#include "toolkit/mForms.h"

/// Shows a dialog with the keyboard at its first control, also where it stood elsewhere when the
/// dialog was last used.
void ShowFromStart(QDialog &dialog);

/// Shows an assistant's dialog, if a document is open to write into.
template <class F>
void OpenAssistant() {
  if (mPublic::AnyEditorOpen()) ShowFromStart(*Default<F>());
}
