#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringView>

/// One message of the compiler, a row of the output window. Both texts have at most 200 characters,
/// counted with the blanks at their beginning, which are then taken away.
struct CompilerMessage {
  qint32 Line = 0;
  QString Message;
  QString Source;  ///< the line of the source

  bool operator==(const CompilerMessage &) const = default;
};

/// What a Java compiler writes: for each message a line "File.java:12: text", the source line, and
/// a line with "^" under the place. All of it costs time in proportion to the text's length.
namespace CompilerOutput {

/// Bytes of the compiler's file that are looked at.
constexpr qint64 LargestFile = 2'000'000;

/// The file's bytes as text with CR LF line ends: UTF-8 if that is what they are (a character cut
/// off at LargestFile doesn't count), else code page 1252.
QString Decode(QByteArrayView bytes);

/// Whether the compiler has come to its last line: "error" among the last ten characters.
bool HasEnded(QStringView text);

/// The pieces of a text that end at a "^", one for each message. They point into the text. A "^" of
/// the source or the message ends a piece too.
QList<QStringView> Blocks(QStringView text);

/// From the last pair of colons in a block with a positive number between them: that number, the
/// text behind the pair up to its line's end, and the line below. 0 or empty if there is none; what
/// a pair can't give (a line that has no end, a number beyond the range) an earlier one does.
qint32 ExtractLineNumber(QStringView block);
QString ExtractMessageText(QStringView block);
QString ExtractSourceLine(QStringView block);

/// The row of a block.
CompilerMessage MessageOf(QStringView block);

/// The number of CR characters, as text.
QString CountCarriageReturns(QStringView text);

}  // namespace CompilerOutput
