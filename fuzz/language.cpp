// lang.dat: going through its items and storing what was typed.

#include "Fuzz.h"
#include "frame/LanguageTexts.h"

void Try(Input &input) {
  const QString path = Path(QStringLiteral("lang.dat"));
  const auto cutOff = input.ConsumeIntegralInRange<qsizetype>(0, sizeof(LanguageRecord));
  QByteArray bytes;
  for (int records = input.ConsumeIntegralInRange(0, 3); records > 0; --records) {
    bytes += TakeRecord<LanguageRecord>(input, {2000, 2000, 2});
  }
  bytes.chop(std::min(cutOff, bytes.size()));
  PutFile(path, bytes);
  LanguageTexts texts(path);
  while (input.remaining_bytes() > 0) {
    const bool next = input.ConsumeBool();
    if (input.ConsumeBool()) texts.german = TakeText(input, 2100);
    if (input.ConsumeBool()) texts.english = TakeText(input, 2100);
    texts.Go(next ? LanguageTexts::Direction::Next : LanguageTexts::Direction::Previous);
    Require(texts.Number() >= 1 && texts.Number() <= std::max<qint64>(texts.Count(), 1),
            "an item of the file is shown");
    Require(texts.german.size() <= 2000 && texts.english.size() <= 2000, "a text fits its field");
  }
}
