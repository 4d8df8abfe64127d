#pragma once

#include <QString>

#include "base/FixedText.h"
#include "base/RecordFile.h"

/// One item of lang.dat: the same text in both languages.
struct LanguageRecord {
  FixedText<2000> German;
  FixedText<2000> English;
  char unused[2];
};

static_assert(sizeof(LanguageRecord) == 4002);
static_assert(offsetof(LanguageRecord, English) == 2000);

/// The item that the language settings show, and the way from one to the next.
class LanguageTexts {
 public:
  enum class Direction { Next, Previous };

  explicit LanguageTexts(QString path) : file_(std::move(path)) {}

  QString german;
  QString english;

  /// 0 before the first step.
  qint64 Number() const { return number_; }
  qint64 Count() const { return count_; }

  /// Stores the texts, trimmed, as the item shown, if one is, goes to its neighbour, if there is
  /// one, and reads that. Of a file without items the first shows, empty.
  void Go(Direction direction);

 private:
  RecordFile<LanguageRecord> file_;
  qint64 number_ = 0;
  qint64 count_ = 0;
};
