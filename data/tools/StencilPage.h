#pragma once

#include "StencilEntry.h"

/// A stencil's source as an author would have it in a whole page, for whoever checks it.
struct StencilPage {
  QString text;         ///< line ends are CR LF
  qsizetype begin = 0;  ///< where the source begins in it
};

/// Whether the source is an attribute alone: name="value" or a bare word.
bool IsAttribute(const StencilEntry &entry);

/// The page for one of the entries, which has a source; how it is put together is told in
/// StencilLibrary.h. Throws SourceError for an attribute below a source that doesn't begin with a
/// start tag.
StencilPage PageOf(const SourceText &source, const std::vector<StencilEntry> &entries,
                   std::size_t index);
