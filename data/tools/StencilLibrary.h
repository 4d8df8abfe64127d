#pragma once

#include <vector>

#include "SourceText.h"
#include "stencils/StencilRecord.h"

/// The standard stencil library, put together from its sources. One source looks so:
///
///     Notes of the author, up to the first heading.
///
///     # Text                        a heading is a record; the number of signs is its level
///     What the section is for.      help text: lines are joined, a blank line parts paragraphs,
///                                   a line that begins with "- " stays a line of its own
///     ## Paragraph
///     caption: p                    short name; without one the heading stands in its place
///     A block of running text.
///     ```
///     <p></p>                       what is inserted, as it stands here; an empty last line
///     ```                           gives it a line break at its end
///
/// Keys follow the order: the first child of a node gets "aa" behind its parent's key, the next
/// "bb", and so on. Refused with SourceError: a node's 27th child, a level that is skipped, a text
/// too long for its field or with a character outside the code page, a missing help text, a source
/// with blanks at its ends (readers would cut them off), and an entry with neither source nor
/// sub-entries.
class StencilLibrary {
 public:
  StencilLibrary() : path_{{QByteArray("aa"), 0}} {}

  /// Appends the records of one source; its first heading is of the top level.
  void Add(const SourceText &source);

  const std::vector<StencilRecord> &records() const { return records_; }

 private:
  struct Entry;
  struct Node {
    QByteArray key;
    int children = 0;
  };

  /// Appends one entry; nextLevel is that of the heading behind it, 0 at the end of the source.
  void Append(const SourceText &source, const Entry &entry, qsizetype nextLevel);

  std::vector<Node> path_;  ///< from the root to the last entry
  std::vector<StencilRecord> records_;
};
