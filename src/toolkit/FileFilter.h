#pragma once

#include <QStringList>

/// Turns a filter of pairs "label|patterns|label|patterns" into the name filters of the toolkit's
/// file dialog, "label (pattern pattern)". A label without patterns at the end is left out.
QStringList NameFilters(const QString &filter);
