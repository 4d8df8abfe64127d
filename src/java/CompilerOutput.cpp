#include "java/CompilerOutput.h"

#include <algorithm>
#include <limits>

#include "base/mAnsi.h"
#include "base/mText.h"

namespace CompilerOutput {

using mText::InStr;
using mText::Left;
using mText::Mid;
using mText::ReplaceAllText;
using mText::Trim;

namespace {

constexpr qsizetype fieldLength = 200;
constexpr int longestUtf8 = 4;  // bytes of a character

// Beyond this nothing can reach a field: each of its clean-ups leaves a third of a text at least,
// and at most two of them shorten it.
constexpr qsizetype reachesField = 10 * fieldLength;

QString WithCrLf(QStringView text) {
  QString result;
  result.reserve(text.size() + text.size() / 16);
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] != u'\r' && text[i] != u'\n') {
      result += text[i];
      continue;
    }
    result += QLatin1String("\r\n");
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return result;
}

// Without the beginning of a UTF-8 character at the end.
QByteArrayView WithoutCutCharacter(QByteArrayView bytes) {
  if (bytes.isValidUtf8()) return bytes;
  const auto isFollowing = [](char byte) { return (byte & 0xC0) == 0x80; };
  int following = 0;
  while (following < longestUtf8 - 1 && isFollowing(bytes[bytes.size() - 1 - following])) {
    ++following;
  }
  const bool cut = uchar(bytes[bytes.size() - 1 - following]) >= 0xC0;
  return cut ? bytes.chopped(following + 1) : bytes;
}

// Calls found(number, position behind the pair) for every pair of colons with a positive number
// between them. The second colon of a pair can be the first of the next one.
template <class Found>
void ForEachNumber(QStringView block, const Found &found) {
  qsizetype start = 1;
  while (const qsizetype first = InStr(start, block, u":")) {
    const qsizetype second = InStr(first + 1, block, u":");
    if (second == 0) return;
    const QString between = Trim(block.sliced(first, second - first - 1));
    if (const double number = mText::Val(between); number > 0)
      found(number, first + between.size() + 2);
    start = first + 2;
  }
}

}  // namespace

QString Decode(QByteArrayView bytes) {
  const QByteArrayView whole = bytes.size() < LargestFile ? bytes : WithoutCutCharacter(bytes);
  return WithCrLf(whole.isValidUtf8() ? QString::fromUtf8(whole) : mAnsi::FromAnsi(bytes));
}

bool HasEnded(QStringView text) {
  return InStr(1, mText::Right(text, 10), u"error", Qt::CaseInsensitive) > 0;
}

// The first piece takes the two characters behind its mark, its line's end, along; the others end
// with the mark and the next one begins two characters behind it.
QList<QStringView> Blocks(QStringView text) {
  QList<QStringView> blocks;
  qsizetype begin = 0;
  for (qsizetype mark = InStr(1, text, u"^"); mark > 0; mark = InStr(mark + 4, text, u"^")) {
    const qsizetype end = std::min(mark + 2, text.size());
    QStringView block = text.sliced(begin, (blocks.isEmpty() ? end : mark) - begin);
    while (!blocks.isEmpty() && block.endsWith(u' ')) block.chop(1);
    blocks << block;
    begin = end;
  }
  return blocks;
}

qint32 ExtractLineNumber(QStringView block) {
  qint32 line = 0;
  ForEachNumber(block, [&line](double number, qsizetype) {
    const qint64 whole = mText::RoundToEven(number);
    if (whole <= std::numeric_limits<qint32>::max()) line = qint32(whole);
  });
  return line;
}

QString ExtractMessageText(QStringView block) {
  const qsizetype lastCr = block.lastIndexOf(u'\r') + 1;
  qsizetype begin = 0;
  ForEachNumber(block, [&](double, qsizetype behind) {
    if (behind <= lastCr) begin = behind;
  });
  return begin > 0 ? Mid(block, begin, InStr(begin, block, u"\r") - begin) : QString();
}

// Where no line ends behind the pair, "below" is the block's first line.
QString ExtractSourceLine(QStringView block) {
  const qsizetype lastCr = block.lastIndexOf(u'\r') + 1;
  const qsizetype lastButOne = lastCr > 1 ? block.first(lastCr - 1).lastIndexOf(u'\r') + 1 : 0;
  qsizetype begin = 0;
  ForEachNumber(block, [&](double, qsizetype behind) {
    if (behind <= lastButOne || (lastCr > 0 && behind > lastCr)) begin = behind;
  });
  if (begin == 0) return {};
  const qsizetype above = InStr(begin, block, u"\r");
  return Mid(block, above + 1, InStr(above + 1, block, u"\r") - above - 1);
}

CompilerMessage MessageOf(QStringView block) {
  const auto field = [](const QString &text) { return Trim(Left(text, fieldLength)); };
  QString message = Left(ExtractMessageText(block), reachesField);
  message = ReplaceAllText(message, u"\n", u"; ");
  message = ReplaceAllText(message, u"\n", u"");
  message = ReplaceAllText(message, u"  ;", u";");
  message = ReplaceAllText(message, u"  :", u":");
  QString source = Left(ExtractSourceLine(block), reachesField);
  source = ReplaceAllText(source, u"\n", u"");
  source = ReplaceAllText(source, u"\t", u" ");
  return {ExtractLineNumber(block), field(message), field(source)};
}

QString CountCarriageReturns(QStringView text) {
  return mText::NumberText(double(text.count(u'\r')));
}

}  // namespace CompilerOutput
