#pragma once

#include "base/ColourSpans.h"

class QTextDocument;
class QTextBlock;

/// The colours of a text document. They are shown as the formats of the lines' layouts and lie
/// beside the document's history: they make no undo step and join none. Positions are the
/// document's. Every edit moves, cuts or splits them; text that an edit brings in is black.
class DocumentColours {
 public:
  /// The document must outlive it, and its edits must be followed.
  explicit DocumentColours(QTextDocument *document) : document_(document) {}

  /// To be called from the document's contentsChange: removed characters at the position gave way
  /// to added ones.
  void Follow(int position, int removed, int added);

  /// Colours a piece, black takes colour away. Seen after the next Show.
  void Set(int start, int end, ColourSpans::Colour colour);

  /// Shows what has been set since the last call.
  void Show();

  /// The spans that reach into a piece, cut to it.
  std::vector<ColourSpans::Span> Within(int start, int end) const {
    return spans_.Within(start, end);
  }

 private:
  void ShowBetween(int start, int end);
  void ShowIn(const QTextBlock &block);

  QTextDocument *document_;
  ColourSpans spans_;
  bool everShown_ = false;
  int setFrom_ = 0;  ///< what has been set and isn't shown yet; empty where setTo_ is not above it
  int setTo_ = 0;
};
