#pragma once

#include <vector>

#include "HtmlDtd.h"
#include "SourceText.h"

/// One heading of a stencil source with what stands below it. Lines are numbers of lines in the
/// source.
struct StencilEntry {
  qsizetype level = 0;
  qsizetype line = 0;
  std::ptrdiff_t parent = -1;  ///< index of the entry above it; -1 at the top level
  QString header;
  QString caption;  ///< empty if the heading stands in its place
  qsizetype captionLine = 0;
  QString help;
  qsizetype helpLine = 0;
  QString html;
  qsizetype htmlLine = 0;  ///< of the fence that opens the source; 0: a mere section
  HtmlVersion type = HtmlVersion::strict;
  QString within;  ///< its own, not that of an entry above it; empty if it has none
};

/// The entries of a source, in its order. Throws SourceError for what breaks the format, which
/// StencilLibrary.h tells.
std::vector<StencilEntry> ReadStencilEntries(const SourceText &source);
