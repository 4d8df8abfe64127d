#pragma once

class frmHTMLChild;

/// Runs the colouring pass over the line that the caret has left, and notes the line that it stands
/// on now for the next one. Pumps events: the window may be gone afterwards. Caret, selection and
/// scroll position stay.
void ColourEditorLine(frmHTMLChild &editor);
