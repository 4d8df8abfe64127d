#pragma once

#include <functional>

/// Ends the process in good order: every window is hidden and every event loop left. It returns to
/// its caller, whose handler should end.
void EndProgram();

/// Puts something else in the place of ending the process; an empty function puts it back.
void SetEndProgram(std::function<void()> end);
