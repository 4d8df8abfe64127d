#pragma once

#include <QPointer>
#include <QString>
#include <array>

#include "documents/frmHTMLChild.h"
#include "frame/mPublic.h"

class QMdiArea;

/// The editor windows by slot, and how a new one comes to its slot.
namespace mEditors {

/// One window a slot; null where none has been made yet or a closed one has been destroyed. The
/// window of a slot that is not open is on its way out.
extern std::array<QPointer<frmHTMLChild>, mPublic::LastSlot + 1> aEditorWindow;

/// The window of the active slot, null if that slot is not open.
frmHTMLChild *Active();

/// Takes the first free slot and opens an empty window for it, with the fonts of the preferences
/// and its boxes placed. Null if no slot is free, or if the user closed the window while it was
/// opening. Whoever calls it puts the text in and gives it its caption.
frmHTMLChild *OpenWindow();

/// Gives all open documents the font of that record, bold and the like off; their colours and undo
/// histories stay, and their carets stand at the end of the text.
void UseFont(const Preferences &record);

/// Brings a window in front of the others and makes it the active one; a minimised one stays so.
void BringToTop(frmHTMLChild &editor);

/// The area that the windows live in.
QMdiArea &Area();

/// Takes a closed window out of the area. The window that comes to the front then is not one that
/// the user turned to, so the active slot stays what it is.
void TakeFromArea(frmHTMLChild &editor);

/// What the area tells when it activates a window; null is ignored.
void WindowActivated(QMdiSubWindow *window);

/// Makes the window in front the active slot, if it is a document that has its caption.
void TakeActiveFromFront();

}  // namespace mEditors
