#pragma once

#include <QString>

/// Whether the folder of temporary data can be used. If it is missing, asks whether to make it,
/// with OK and Cancel; text names the folder as C:\TEMP. A folder that isn't safe to write into
/// counts as Cancel.
bool TemporaryFolderIsThere(const QString &text, const QString &title);
