#pragma once

/// The commands of the window menu. Three place the editor windows, two act on all of them, and
/// three act on the main window. They leave everything as it is when no document is open, except
/// the last three.
///
/// The placing commands and CloseAll pump events: a window that goes in the middle is passed over,
/// and so is one that the user maximises or minimises then. A placing command that is given while
/// another one runs takes its place.
namespace WindowCommands {

/// A grid, in spite of its name.
void Cascade();
void TileHoricontally();
void TileVertitally();

/// Unloads each editor window with its own question, asked once. Cancel keeps that window and goes
/// on with the next.
void CloseAll();
void AllMinimized();

void Minimized();
void Maximized();

/// Gives the main window its normal size, also when it isn't maximised. A minimised one has no size
/// to set and stays as it is.
void NormalSize();

}  // namespace WindowCommands
