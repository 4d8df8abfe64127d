#pragma once

#include <QString>

/// Tells the user of a file that could not be used in a step that catches no errors: the path in
/// the first line, the system's own words in the second. Whoever calls it ends its handler there
/// and leaves its controls as they stand.
void ShowUntrappedError(const QString &path, const QString &systemText);

/// Whether a file is missing, which is as good as an empty one, or can be read. If it can't, that
/// is told as above.
bool ReadableOrTold(const QString &path);
