// What a compiler writes: the text, its pieces, and the rows of the output window.

#include "Fuzz.h"
#include "java/CompilerOutput.h"

void Try(Input &input) {
  const auto bytes = input.ConsumeRemainingBytes<char>();
  const QString text =
      CompilerOutput::Decode(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  CompilerOutput::HasEnded(text);
  Require(CompilerOutput::CountCarriageReturns(text).toLongLong() == text.count(u'\n'),
          "each line end is CR LF");
  const QChar *behind = text.constData();
  for (const QStringView block : CompilerOutput::Blocks(text)) {
    Require(block.data() >= behind && block.data() + block.size() <= text.constEnd(),
            "the pieces follow one another in the text");
    behind = block.data() + block.size();
    const CompilerMessage message = CompilerOutput::MessageOf(block);
    Require(message.Line >= 0, "a line's number is positive");
    Require(message.Message.size() <= 200 && message.Source.size() <= 200, "fields are filled");
    Require(!message.Message.startsWith(u' ') && !message.Source.startsWith(u' '),
            "blanks in front are taken away");
  }
}
