#pragma once

#include <QString>
#include <array>

#include "documents/Landmarks.h"

/// How tags are coloured: what the buttons of the text options have set.
struct TagColours {
  bool borders = false;
  bool header = false;
  bool body = false;
  int red = 128;  ///< levels, 38 to 248
  int green = 128;
  int blue = 128;
  int grey = 128;
};

/// What a colouring pass needs of a text. Positions count from 0 and take both characters of a line
/// end; lines count from 0.
class ColourableText {
 public:
  virtual ~ColourableText() = default;

  /// Start of a line, -1 if there is no such line.
  virtual qsizetype LineIndex(int line) const = 0;

  /// Length of the line at a position, without its end.
  virtual qsizetype LineLength(qsizetype position) const = 0;

  virtual QString Piece(qsizetype start, qsizetype length) const = 0;

  virtual int GetLineFromChar(qsizetype position) const = 0;

  /// The line of a landmark, 0 if the text has none.
  virtual int LineOf(Landmarks::Landmark landmark) const = 0;

  /// colour is red * 65536 + green * 256 + blue.
  virtual void SetColour(qsizetype start, qsizetype length, quint32 colour) = 0;

  /// Lets pending events run. False if the text is no longer what it was before.
  virtual bool Pump() = 0;
};

/// Colours the tags of one line: the caret's own if that is 0 or 1, else the one that the caret
/// stood on before. The colour of a tag goes from behind its "<" to its ">". A tag that doesn't
/// close on its line stays as it is. The pass ends where pumping shows that the text has changed,
/// since its positions hold no longer.
void ColourLeftLine(ColourableText &text, int caretLine, int formerLine, const TagColours &colours);
