#pragma once

/// The commands of the Java menu and its tool strip. They start another program and don't wait.
namespace JavaCommands {

/// Compiles the file of the active editor as it lies on disk, and opens the window that shows the
/// compiler's messages.
void Compile();

/// Hands the html file of the active editor to the applet viewer, which starts in the file's
/// folder.
void AppletViewer();

/// Deletes what the compiler has written.
void DeleteCompilerOutput();

}  // namespace JavaCommands
