#pragma once

#include <QString>

/// Whether another process runs the program from this program folder. If none does, this process is
/// the one from now on, until it ends. A lock that can't be made for any other reason, such as a
/// missing runtime folder, counts as none running.
bool AnotherInstanceRuns(const QString &programFolder);
