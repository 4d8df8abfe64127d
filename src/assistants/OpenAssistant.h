#pragma once

#include "frame/mPublic.h"
#include "toolkit/mForms.h"

/// Shows an assistant's dialog, if a document is open to write into.
template <class F>
void OpenAssistant() {
  if (mPublic::AnyEditorOpen()) Default<F>()->show();
}
