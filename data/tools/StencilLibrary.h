#pragma once

#include <QHash>
#include <vector>

#include "StencilEntry.h"
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
/// Two more lines may stand below a heading. Both are for the checks alone, and hold for the
/// sub-entries too, as far as these have none of their own:
///
///     type: transitional            the document type to which the source belongs: strict,
///                                   transitional or frameset; strict if none is said
///     within: <table><tr>|</tr></table>
///                                   where the source may stand: in place of the "|"
///
/// An attribute, name="value" or a bare word, that has no "within" of its own stands in the first
/// tag of the nearest source above it that begins with a tag. The text that comes out so takes the
/// place of a page's html, head, body or frameset if it begins with that tag, and is a page if it
/// begins with <!DOCTYPE; any other stands in a div of a page's body.
///
/// Keys follow the order: the first child of a node gets "aa" behind its parent's key, the next
/// "bb", and so on. Refused with SourceError: a node's 27th child, a level that is skipped, a text
/// too long for its field or with a character outside the code page, a missing help text or one
/// that another entry has, a source with blanks at its ends (readers would cut them off), an entry
/// with neither source nor sub-entries, and an element or attribute that the document type doesn't
/// have.
class StencilLibrary {
 public:
  /// Reads the three document types from the folder of their DTDs; throws SourceError if it can't.
  explicit StencilLibrary(const QString &dtdFolder = QStringLiteral(TAGWRIGHT_DTD_FOLDER));

  /// Appends the records of one source; its first heading is of the top level.
  void Add(const SourceText &source);

  const std::vector<StencilRecord> &records() const { return records_; }

 private:
  struct Node {
    QByteArray key;
    int children = 0;
  };

  void Append(const SourceText &source, const StencilEntry &entry);
  void CheckHelp(const SourceText &source, const StencilEntry &entry);
  void CheckMarkUp(const SourceText &source, const std::vector<StencilEntry> &entries,
                   std::size_t index) const;

  std::vector<HtmlDtd> dtds_;      ///< in the order of HtmlVersion
  std::vector<Node> path_;         ///< from the root to the last entry
  QHash<QString, QString> helps_;  ///< "file:line" of each help text so far
  std::vector<StencilRecord> records_;
};
