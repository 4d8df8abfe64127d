#pragma once

/// The commands of the edit menu, on the text of the active document. Without one they do nothing,
/// but for ClearClipboard.
namespace EditCommands {

void Cut();
void Copy();
void Paste();
void ClearClipboard();

}  // namespace EditCommands
