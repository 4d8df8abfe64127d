#pragma once

#include <QString>
#include <functional>

/// Deleting self-built stencils: records are blanked in place first, then both files are rewritten
/// without what was blanked.
namespace mStencilBuilder {

/// Called once for each record on the way, so that a form can let events run.
using Pump = std::function<void()>;

/// Blanks the record with that key and all records below it: those whose key begins with it,
/// regardless of case. An empty key means all. Each record is written in place.
void BlankSubtree(const QString &stencils, const QString &key, const Pump &pump = {});

/// Rewrites the stencils without the records whose key is shorter than two characters, then the
/// quick bar without the entries whose stencil is gone. The order of what stays is kept; a key that
/// several stencils have gives its entry as often. A file that isn't there stays so. All paths are
/// of one folder. Where a step fails, that file is as it was.
void CompactSelfBuiltFiles(const QString &stencils, const QString &quickBar, const QString &scratch,
                           const Pump &pump = {});

}  // namespace mStencilBuilder
