#pragma once

#include <QByteArray>
#include <QString>
#include <algorithm>

#include "base/mAnsi.h"
#include "base/mText.h"

/// A text field of a record: N bytes in the ANSI code page, padded on the right with blanks.
/// It is its bytes and nothing else, so a struct of these is the record as it lies on disk.
template <int N>
struct FixedText {
  char bytes[N];

  /// Stores the text, cut to N bytes without a word if it is longer.
  void Set(QStringView text) {
    const QByteArray ansi = mAnsi::ToAnsi(text);
    const int used = static_cast<int>(std::min<qsizetype>(ansi.size(), N));
    std::copy_n(ansi.constData(), used, bytes);
    std::fill(bytes + used, bytes + N, ' ');
  }

  /// The field without the blanks at both ends; NUL bytes, tabs and line breaks stay.
  QString Trimmed() const { return mAnsi::FromAnsi(TrimmedBytes()); }

  /// The same as bytes, for comparing keys without turning them into text. Points into the field.
  QByteArrayView TrimmedBytes() const {
    const char *first = bytes;
    const char *last = bytes + N;
    while (first < last && *first == ' ') ++first;
    while (last > first && last[-1] == ' ') --last;
    return {first, last - first};
  }

  /// Whether nothing but blanks stands in it; soon known of a field that begins with its text.
  bool IsBlank() const {
    return std::all_of(bytes, bytes + N, [](char byte) { return byte == ' '; });
  }
};
