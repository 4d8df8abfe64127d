#pragma once

#include <QString>
#include <QStringList>

/// The quick bar: a file of keys of self-built stencils, in the order of adding.
namespace QuickBar {

/// With exactly so many entries it takes no more.
constexpr int Margin = 100;

enum class Adding { Added, Present, Full, Nothing };

/// Adds an entry behind the last one, unless it is there already or the bar is full. Any key will
/// do, also a section's, but an empty one adds nothing.
Adding Add(const QString &quickBar, const QString &key);

/// The keys of all entries, trimmed.
QStringList Keys(const QString &quickBar);

/// The headers of the stencils that the keys name, in their order; a key without a stencil has
/// none. Where several stencils have a key the first one counts. One pass over the stencils.
QStringList Headers(const QString &stencils, const QStringList &keys);

/// Takes all entries with that key away. False, with the file as it was, if it can't be rewritten.
bool Remove(const QString &quickBar, const QString &scratch, const QString &key);

}  // namespace QuickBar
