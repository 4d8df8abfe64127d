#pragma once

#include <QFile>
#include <QFileInfo>
#include <QString>
#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/mText.h"

/// A random-access file of records of one fixed length, numbered from 1, without header. The file
/// is opened, used and closed within each call, so no file stays open between two user actions. A
/// missing file counts 0 records, and the first Put makes it. What isn't a regular file is taken
/// for one that can't be opened.
template <class Record>
class RecordFile {
  static_assert(std::is_trivially_copyable_v<Record>);

 public:
  explicit RecordFile(QString path) : path_(std::move(path)) {}

  /// File length by record length, rounded to the nearest whole number, halves to the even one. So
  /// a last record that is cut short counts when more than half of it is there.
  qint64 Count() const { return CountIn(QFileInfo(path_)); }

  /// Reads record n. What the file lacks of it reads as NUL. False, with the record untouched, if
  /// the file can't be opened or read, or n is below 1.
  bool Get(qint64 n, Record &record) const;

  /// Writes record n in place, and makes the file if there is none. A gap in front of it is filled
  /// with NUL. False if a byte wasn't taken; the file is then no longer than before.
  bool Put(qint64 n, const Record &record) const;

  /// Writes the record behind the last one that Count counts.
  bool Append(const Record &record) const { return Put(Count() + 1, record); }

  /// Calls visit(n, record) for the records first (1 if it is below) to Count in order until it
  /// returns false. Reads ahead in large blocks, and a last record's missing rest as NUL. The
  /// record passed in is valid during its call only.
  template <class Visit>
  void Scan(qint64 first, Visit visit) const;

 private:
  static constexpr qint64 recordBytes = sizeof(Record);
  static constexpr qint64 blockRecords = std::max<qint64>(1, (1 << 20) / recordBytes);
  static constexpr qint64 lastNumber = std::numeric_limits<qint64>::max() / recordBytes;

  static qint64 CountIn(const QFileInfo &info) {
    return info.isFile() ? mText::RoundToEven(double(info.size()) / double(recordBytes)) : 0;
  }

  /// Unbuffered, since records and blocks go to the system whole; a buffer would be one more copy.
  bool OpenToRead(QFile &file) const {
    return QFileInfo(path_).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  }

  /// Fills the records from the file's position on; false if reading failed.
  static bool Read(QFile &file, Record *records, qint64 count) {
    char *bytes = reinterpret_cast<char *>(records);
    const qint64 got = file.read(bytes, count * recordBytes);
    if (got < 0) return false;
    std::memset(bytes + got, 0, std::size_t(count * recordBytes - got));
    return true;
  }

  QString path_;
};

template <class Record>
bool RecordFile<Record>::Get(qint64 n, Record &record) const {
  QFile file(path_);
  Record read;
  if (n < 1 || n > lastNumber || !OpenToRead(file) || !file.seek((n - 1) * recordBytes) ||
      !Read(file, &read, 1)) {
    return false;
  }
  record = read;
  return true;
}

template <class Record>
bool RecordFile<Record>::Put(qint64 n, const Record &record) const {
  const QFileInfo info(path_);
  QFile file(path_);
  if (n < 1 || n > lastNumber || (info.exists() && !info.isFile()) ||
      !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
    return false;
  }
  const qint64 sizeBefore = file.size();
  if (file.seek((n - 1) * recordBytes) &&
      file.write(reinterpret_cast<const char *>(&record), recordBytes) == recordBytes) {
    return true;
  }
  // Half a record left behind would count as one.
  if (file.size() > sizeBefore) file.resize(sizeBefore);
  return false;
}

template <class Record>
template <class Visit>
void RecordFile<Record>::Scan(qint64 first, Visit visit) const {
  QFile file(path_);
  if (!OpenToRead(file)) return;
  const qint64 count = CountIn(QFileInfo(file));
  first = std::max<qint64>(first, 1);
  if (first > count || !file.seek((first - 1) * recordBytes)) return;
  std::vector<Record> block(std::size_t(std::min(blockRecords, count - first + 1)));
  while (first <= count) {
    const qint64 inBlock = std::min(blockRecords, count - first + 1);
    if (!Read(file, block.data(), inBlock)) return;
    for (qint64 i = 0; i < inBlock; ++i, ++first) {
      if (!visit(first, std::as_const(block[std::size_t(i)]))) return;
    }
  }
}
