#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class DocumentJournal;
class JournalFile;

/// Keeps the unsaved texts of the open documents in files, so that the next start opens them again
/// after the process or the machine has ended without asking. Files are written in a thread of
/// their own; the texts are handed to it in pieces between events.
class Journal : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool busy READ IsBusy)

 public:
  /// The process's journal from now on, in that folder. Touches nothing before there is something
  /// to keep.
  explicit Journal(const QString &folder, QObject *parent = nullptr);

  /// Ends it first.
  ~Journal() override;

  /// Null if the process has none.
  static Journal *Current();

  QTimer *timRest;   ///< runs while typing rests
  QTimer *timLimit;  ///< runs from the first edit that isn't written

  /// Opens the documents that were lost without the user's word, as changed ones, but leaves so
  /// many slots free; those that find no slot stay in the journal. Only the first call does
  /// anything. Pumps events.
  void OpenLostDocuments(int slotsToLeave);

  /// Whether something is yet to be written.
  bool IsBusy() const;

  /// Writes everything and waits until the disk has it.
  void WriteNow();

  /// The same, and from then on nothing is written or removed: what is closed later comes back.
  void End();

  // ---- for its documents

  void Watch(DocumentJournal *document);
  void Forget(DocumentJournal *document);

  /// A document has become due.
  void DocumentDue();

  std::shared_ptr<JournalFile> NewFile() const;

  /// Has the work done in the thread, in the order of the calls, and looks whether the file failed.
  void Do(const std::shared_ptr<JournalFile> &file, std::function<void(JournalFile &)> work);

 private:
  void WriteDue();
  void WritePieces();
  bool WriteNext();
  void RetryLater();

  QString folder_;
  QTimer pieces_;
  QThreadPool thread_;
  std::atomic<int> works_ = 0;
  std::vector<DocumentJournal *> documents_;
  bool opened_ = false;
  bool ended_ = false;
};
