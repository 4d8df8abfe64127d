#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>
#include <vector>

#include "documents/JournalRecords.h"

class Journal;
class JournalFile;
class frmHTMLChild;

/// Keeps one document in the journal as long as its text is not what its file holds.
///
/// The text is copied in pieces between events, as edits that put one behind the other; what is
/// edited in the part that has been copied becomes edits of its own. So the log says a beginning of
/// the document at every moment, and all of it when the last piece has been copied, and no text is
/// ever copied twice because of a key. Beyond some number of edits the text is copied anew, which
/// keeps logs short and quick to read.
class DocumentJournal : public QObject {
  Q_OBJECT

 public:
  /// Keeps the document in the process's journal, if there is one by then.
  explicit DocumentJournal(frmHTMLChild *editor);
  ~DocumentJournal() override;

  /// The text has been written to a file, or it couldn't be. What couldn't be is kept even if the
  /// window is closed without a question. Returns written.
  bool Saved(bool written);

  /// The user doesn't want the text.
  void GivenUp();

  /// The window goes.
  void Closed();

  /// The document is the one of that file, unsaved. It is written anew, and the file stays until
  /// that is done.
  void TakeOver(std::shared_ptr<JournalFile> file);

  /// Something is to be written or removed.
  bool IsDue() const { return due_; }

  /// Hands the next piece of work to the journal's thread.
  void WriteNext();

  /// Becomes due again if something couldn't be written.
  void RetryIfFailed();

 private:
  void Follow(int position, int removed, int added);
  void SetDue();
  bool IsWanted() const;
  void Begin();
  void Remove();

  frmHTMLChild *editor_;
  QPointer<Journal> journal_;
  std::shared_ptr<JournalFile> file_;        ///< null while nothing is kept
  qsizetype copied_ = 0;                     ///< characters of the document that the log says
  bool beginning_ = false;                   ///< the log has yet to be put in place
  std::vector<JournalRecords::Edit> edits_;  ///< in what has been copied, not yet handed over
  QString caption_;                          ///< that the log says
  int editsWritten_ = 0;
  qsizetype charactersWritten_ = 0;  ///< by these edits
  bool due_ = false;
  bool saveFailed_ = false;
  bool closed_ = false;
};
