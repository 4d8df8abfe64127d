#pragma once

#include <QString>

/// How a text comes into the active document other than by typing: from assistants, stencils, the
/// quick bar and the clipboard. Each is one undo step, marks nothing as changed, colours nothing
/// and brings the caret into view. Without an open document nothing happens.
namespace Insertion {

/// The caret stands behind the text.
void ReplaceSelection(const QString &text);

/// Where the selection starts, or at the caret. What was selected stays, and is selected no more;
/// the caret stands behind the text.
void PutInFront(const QString &text);

/// The same, but the caret goes behind what was selected.
void PutInFrontAndPass(const QString &text);

/// Puts the texts around the selection, with the caret behind the closing one; without a selection
/// the caret stands between them. closing holds nothing that the code page lacks. The document has
/// the focus then.
void Surround(const QString &opening, const QString &closing);

}  // namespace Insertion
