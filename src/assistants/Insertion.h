#pragma once

#include <QString>

#include "frame/mPublic.h"
#include "toolkit/mForms.h"

/// Shows an assistant's dialog, if a document is open to write into.
template <class F>
void OpenAssistant() {
  if (mPublic::AnyEditorOpen()) Default<F>()->show();
}

/// How the assistants put their text into the active document. Each is one undo step, marks nothing
/// as changed and colours nothing. Without an open document nothing happens.
namespace Insertion {

/// The caret stands behind the text.
void ReplaceSelection(const QString &text);

/// Where the selection starts, or at the caret. What was selected stays, and is selected no more;
/// the caret stands behind the text.
void PutInFront(const QString &text);

/// The same, but the caret goes behind what was selected.
void PutInFrontAndPass(const QString &text);

/// Puts the texts around the selection, with the caret behind the closing one; without a selection
/// the caret stands between them. The document has the focus then.
void Surround(const QString &opening, const QString &closing);

}  // namespace Insertion
