#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <optional>

/// What the journal of one document says of it, and in which bytes.
///
/// A journal is a heading and a log of records: the document's caption, and edits that make its
/// text, beginning with an empty one. Each record ends in its digest, so that a log cut short or
/// damaged holds the text of its last sound record. Line ends count one character, as in the text
/// box's document; characters are bytes of the ANSI code page, which is all that a document holds.
///
///     heading  "tagwright journal 1\n"
///     record   kind (1 byte: 1 caption, 2 edit), position, removed, size (4 each, little-endian),
///              size bytes (the caption in UTF-8, the edit's text), digest (16, BLAKE2s of all
///              that)
namespace JournalRecords {

/// Characters that gave way to a text.
struct Edit {
  qsizetype position;
  qsizetype removed;
  QString text;
};

/// Characters that the text of one edit has at the most; a larger one comes in pieces.
constexpr qsizetype LongestText = 1 << 16;

/// Makes one edit of two, if they touch and the result is no longer than one may be: what is typed
/// in one place becomes one record. False, with both as they were, if not.
bool Join(Edit &first, const Edit &second);

QByteArray Heading();
QByteArray OfCaption(const QString &caption);
QByteArray OfEdit(const Edit &edit);

struct Document {
  QString caption;
  QString text;  ///< with LF line ends
  bool whole;    ///< whether the log was sound to its end
};

/// Reads a log up to its end or its first unsound record. Nothing if not even a caption can be
/// read, or if no editor could hold the text. However long the device, no more than the sound
/// records and the head of one more are read.
std::optional<Document> Read(QIODevice &log);

}  // namespace JournalRecords
