#pragma once

/// Lets the window system's pending events run in the middle of a handler. Anything may have
/// happened when it returns: look again at what you hold. Nothing else calls processEvents.
void DoEvents();

/// The same inside a loop over records, cells or points: pumps only when 10 ms have passed since
/// the last pump, so that a long loop stays responsive and a short one costs nothing.
void DoEventsInLoop();

/// Milliseconds between two pumps of DoEventsInLoop; tests set 0 to pump at every call.
void SetLoopPumpInterval(int milliseconds);

/// Whether a pump is on the stack.
bool DoEventsRunning();
