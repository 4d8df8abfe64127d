#pragma once

#include <string>

/// From here on the process writes, makes, renames and removes files below this folder alone, given
/// as a path without links; the calls fail elsewhere, as for a user without rights. Folders outside
/// are listed only below /usr and /etc, and /.
void FenceIn(const std::string &folder);

/// How many calls the fence has refused.
int RefusedCalls();

/// Moves the process's clock on. It moves by a microsecond at each look, and never by itself, so
/// that a run is the same however fast the machine is.
void PassTime(int milliseconds);
