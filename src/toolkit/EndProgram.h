#pragma once

#include <functional>

/// Ends the process in good order: every window is hidden and every event loop left. It returns to
/// its caller, whose handler should end.
void EndProgram();

/// Runs the event loop until EndProgram is called; not at all if it has been. Returns the process's
/// status.
int RunProgram();

/// Puts something else in the place of ending the process; an empty function puts it back.
void SetEndProgram(std::function<void()> end);
