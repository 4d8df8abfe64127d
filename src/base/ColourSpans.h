#pragma once

#include <QtGlobal>
#include <vector>

/// The coloured pieces of a text, in order and apart from each other. What no span covers is black.
/// Positions are those of the text's characters, from 0.
///
/// Kept like the text of a gap buffer: the spans behind the place of the last change are measured
/// from a common shift, so an edit costs nothing for them, however many there are.
class ColourSpans {
 public:
  using Colour = quint32;  ///< red * 65536 + green * 256 + blue

  struct Span {
    int start;
    int end;  ///< the position behind the last character
    Colour colour;
    bool operator==(const Span &) const = default;
  };

  static constexpr Colour Black = 0;

  /// Colours a piece anew; black takes the colour away.
  void Set(int start, int end, Colour colour);

  /// Follows an edit of the text: removed characters at the position gave way to added ones, which
  /// are black.
  void Edited(int position, int removed, int added);

  /// The spans that reach into a piece, cut to it.
  std::vector<Span> Within(int start, int end) const;

 private:
  void MoveGap(int position);
  void Clear(int start, int end);

  std::vector<Span> before_;  ///< in order
  std::vector<Span> behind_;  ///< in reverse order, without the shift
  int shift_ = 0;
};
