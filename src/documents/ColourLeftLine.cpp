#include "documents/ColourLeftLine.h"

#include "base/mText.h"

namespace {

constexpr quint32 black = 0;

// The lines right behind the head count for it, since "<body" usually stands there.
constexpr int behindHead = 3;

constexpr quint32 Rgb(int red, int green, int blue) {
  return quint32(red) << 16 | quint32(green) << 8 | quint32(blue);
}

// The border's colour stands first; header and body each replace what stood before.
quint32 ColourOfTag(const ColourableText &text, int line, const TagColours &colours) {
  const int bodyStart = text.LineOf(Landmarks::BodyStart);
  const int bodyEnd = text.LineOf(Landmarks::BodyEnd);
  const int headStart = text.LineOf(Landmarks::HeadStart);
  const int headEnd = text.LineOf(Landmarks::HeadEnd);
  quint32 colour = colours.borders ? Rgb(colours.red, 0, 0) : black;
  if (line <= headEnd + behindHead && line >= headStart) {
    colour = colours.header ? Rgb(0, colours.green, 0) : black;
  }
  if (line >= bodyStart && line <= bodyEnd) {
    colour = colours.body ? Rgb(0, 0, colours.blue) : Rgb(colours.grey, colours.grey, colours.grey);
  }
  return colour;
}

}  // namespace

void ColourLeftLine(ColourableText &text, int caretLine, int formerLine,
                    const TagColours &colours) {
  const int target = caretLine <= 1 ? caretLine : formerLine;
  qsizetype lineStart = text.LineIndex(target);
  if (lineStart < 0) return;
  const qsizetype lineLength = text.LineLength(lineStart);
  if (lineStart == 0) lineStart = 1;
  // Counting from 1 where the text counts from 0, the line is read from one character before it;
  // only the first line, which has none, begins with itself.
  const QString lineText = text.Piece(lineStart - 1, lineLength + 1);
  if (colours.borders && !colours.header) return;

  qsizetype position = 1;
  while (position <= lineLength) {
    const qsizetype lt = mText::InStr(position, lineText, u"<");
    if (lt < 1) return;
    const qsizetype gt = mText::InStr(lt + 1, lineText, u">");
    if (gt == 0) return;
    const qsizetype start = lineStart + lt - 1;
    text.SetColour(start, gt - lt, ColourOfTag(text, text.GetLineFromChar(start), colours));
    if (!text.Pump()) return;
    position = gt + 1;
  }
}
