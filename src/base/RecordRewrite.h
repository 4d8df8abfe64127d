#pragma once

#include <QFile>
#include <QString>
#include <type_traits>

/// Rewrites a file through a scratch file in the same folder: the scratch is made anew, written
/// whole, flushed to the disk and renamed over the old file. Whatever fails, or whenever the
/// process is killed, the old file is as it was or the new one stands whole in its place. The file
/// of a link is replaced, not the link; the old file's permissions stay.
class FileRewrite {
 public:
  FileRewrite(const QString &path, const QString &scratch);

  /// Takes a scratch that was not put in place away.
  ~FileRewrite();

  FileRewrite(const FileRewrite &) = delete;
  FileRewrite &operator=(const FileRewrite &) = delete;

  void Write(const char *bytes, qint64 count);

  /// Puts the new file in the old one's place. False, with the old file as it was, if that or
  /// anything before has failed.
  bool Commit();

 private:
  QString target_;
  QFile scratch_;
  bool good_;
};

/// The same for records, written one after the other from the first on.
template <class Record>
class RecordRewrite {
  static_assert(std::is_trivially_copyable_v<Record>);

 public:
  RecordRewrite(const QString &path, const QString &scratch) : file_(path, scratch) {}

  void Put(const Record &record) {
    file_.Write(reinterpret_cast<const char *>(&record), sizeof(Record));
  }
  bool Commit() { return file_.Commit(); }

 private:
  FileRewrite file_;
};
