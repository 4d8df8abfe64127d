#include "frame/LanguageTexts.h"

#include <algorithm>

#include "base/mText.h"

namespace {

// What a file lacks of its last record reads as NUL.
QString UpToNul(const FixedText<2000> &field) {
  return mText::Trim(field.Trimmed().section(QChar(0), 0, 0));
}

}  // namespace

void LanguageTexts::Go(Direction direction) {
  LanguageRecord record{};
  if (number_ > 0) {
    record.German.Set(mText::Trim(german));
    record.English.Set(mText::Trim(english));
    file_.Put(number_, record);
  }
  count_ = file_.Count();
  const qint64 wanted = direction == Direction::Next ? number_ + 1 : number_ - 1;
  number_ = std::clamp<qint64>(wanted, 1, std::max<qint64>(count_, 1));
  record = {};
  file_.Get(number_, record);
  german = UpToNul(record.German);
  english = UpToNul(record.English);
}
