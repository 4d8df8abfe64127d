#pragma once

#include <QFile>
#include <QString>
#include <cstring>
#include <type_traits>
#include <vector>

#include "base/mText.h"

/// A random-access file of records of one fixed length, numbered from 1, without header. The file is
/// opened, used and closed within each call, so no file stays open between two user actions.
/// A missing file counts 0 records, and the first Put makes it.
template <class Record>
class RecordFile {
  static_assert(std::is_trivially_copyable_v<Record>);

 public:
  explicit RecordFile(QString path) : path_(std::move(path)) {}

  /// File length by record length, rounded to the nearest whole number, halves to the even one. So
  /// a last record that is cut short counts when more than half of it is there.
  qint64 Count() const {
    return mText::RoundToEven(double(QFile(path_).size()) / double(sizeof(Record)));
  }

  /// Reads record n. What the file lacks of it reads as NUL. False, with the record untouched, if
  /// the file can't be opened.
  bool Get(qint64 n, Record &record) const;

  /// Writes record n in place, and makes the file if there is none. False if a byte wasn't taken.
  bool Put(qint64 n, const Record &record) const;

  /// Writes the record behind the last one that Count counts.
  bool Append(const Record &record) const { return Put(Count() + 1, record); }

  /// Calls visit(n, record) for the records first to Count in order until it returns false. Reads
  /// ahead in large blocks. The record passed in is valid during its call only.
  template <class Visit>
  void Scan(qint64 first, Visit visit) const;

 private:
  QString path_;
};
