#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <optional>

#include "documents/JournalRecords.h"

/// The file of one document's journal. The process that it belongs to holds a lock on it, which
/// ends with the process, so several can share a folder.
///
/// A log is begun beside the one that it replaces and put in its place when it says the whole
/// document, so at every moment the file under the journal's name says all of it, of now or of a
/// moment ago. What can't be written is lost without a word, but for Failed.
///
/// All but Failed may block on the disk, and belong to one thread at a time.
class JournalFile {
 public:
  /// A journal without a file, to be begun in that folder. The folder is made when it is needed,
  /// for its owner alone.
  explicit JournalFile(const QString &folder);

  /// The journals of a folder, oldest first, be they a living process's or not.
  static QStringList In(const QString &folder);

  struct Found {
    std::shared_ptr<JournalFile> file;
    JournalRecords::Document document;
  };

  /// Takes over the journal of a process that has ended. Nothing, and the file stays as it is, if
  /// it is a living process's or none that may be read. What can't be understood is kept under the
  /// name with ".damaged" at its end: the whole file if that is all of it, which gives nothing;
  /// else another name of the file, whose log is to be begun anew.
  static std::optional<Found> TakeOver(const QString &path);

  /// Removes what processes that have ended had begun and not put in place.
  static void RemoveUnfinished(const QString &folder);

  /// Begins a new log; the old one stays until Commit.
  void Begin();

  /// Puts records behind the log that has been begun last.
  void Append(const QByteArray &records);

  /// Lets neither a crash nor a power cut take away what has been appended.
  void Sync();

  /// Puts the log that was begun in the place of the old one, safely on the disk.
  void Commit();

  void Remove();

  /// Whether something couldn't be written since the last Begin. Nothing is appended then, so the
  /// file says the document as it was before. May be asked from any thread.
  bool Failed() const { return failed_; }

 private:
  JournalFile() = default;
  void Fail();

  QString path_;
  std::unique_ptr<QFile> begun_;  ///< null when there is no log to be put in place
  std::unique_ptr<QFile> file_;   ///< null when there is no file of that name
  std::atomic<bool> failed_ = false;
};

/// The folder of the journals of one program folder: in $XDG_STATE_HOME/tagwright, which by default
/// is below ~/.local/state.
QString JournalFolder(const QString &programFolder);
