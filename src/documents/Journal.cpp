#include "documents/Journal.h"

#include <QElapsedTimer>
#include <algorithm>

#include "documents/DocumentJournal.h"
#include "documents/JournalFile.h"
#include "documents/OpenFilesTree.h"
#include "documents/mEditors.h"

namespace {

// Milliseconds. What is typed is on the disk no later than ten seconds after, the writing included.
constexpr int rest = 1000;
constexpr int limit = 8000;

// As long as pieces are handed over between two events; far from what a hand feels.
constexpr int untilNextEvent = 2;
constexpr int betweenPieces = 5;

// So many pieces wait for the disk at the most, for the sake of memory.
constexpr int mostWorks = 16;

Journal *current = nullptr;

// False if the user has closed the window while it was opening.
bool OpenAsChanged(JournalFile::Found found) {
  frmHTMLChild *editor = mEditors::OpenWindow();
  if (!editor) return false;
  editor->txthtml->setPlainText(found.document.text);
  editor->SetCaption(found.document.caption);
  mPublic::aEditorState[editor->Slot()].changed = true;
  editor->journal->TakeOver(std::move(found.file));
  return true;
}

}  // namespace

Journal::Journal(const QString &folder, QObject *parent)
    : QObject(parent), timRest(new QTimer(this)), timLimit(new QTimer(this)), folder_(folder) {
  setObjectName(QStringLiteral("Journal"));
  timRest->setObjectName(QStringLiteral("timRest"));
  timRest->setInterval(rest);
  timLimit->setObjectName(QStringLiteral("timLimit"));
  timLimit->setInterval(limit);
  connect(timRest, &QTimer::timeout, this, &Journal::WriteDue);
  connect(timLimit, &QTimer::timeout, this, &Journal::WriteDue);
  pieces_.setInterval(betweenPieces);
  connect(&pieces_, &QTimer::timeout, this, &Journal::WritePieces);
  thread_.setMaxThreadCount(1);
  current = this;
}

Journal::~Journal() {
  End();
  current = nullptr;
}

Journal *Journal::Current() {
  return current;
}

// ---- opening what was lost

void Journal::OpenLostDocuments(int slotsToLeave) {
  if (opened_) return;
  opened_ = true;
  JournalFile::RemoveUnfinished(folder_);
  bool any = false;
  for (const QString &path : JournalFile::In(folder_)) {
    if (ended_ || mPublic::LastSlot - mPublic::CountOpenEditors() <= slotsToLeave) break;
    auto found = JournalFile::TakeOver(path);
    if (found && OpenAsChanged(*std::move(found))) any = true;
  }
  if (any) RebuildOpenFilesTree();
}

// ---- writing

void Journal::Watch(DocumentJournal *document) {
  documents_.push_back(document);
}

void Journal::Forget(DocumentJournal *document) {
  std::erase(documents_, document);
}

std::shared_ptr<JournalFile> Journal::NewFile() const {
  return std::make_shared<JournalFile>(folder_);
}

void Journal::DocumentDue() {
  if (ended_) return;
  timRest->start();
  if (!timLimit->isActive()) timLimit->start();
}

void Journal::Do(const std::shared_ptr<JournalFile> &file,
                 std::function<void(JournalFile &)> work) {
  if (ended_) return;
  ++works_;
  thread_.start([this, file, work = std::move(work)] {
    work(*file);
    if (file->Failed()) QMetaObject::invokeMethod(this, &Journal::RetryLater, Qt::QueuedConnection);
    --works_;
  });
}

bool Journal::IsBusy() const {
  return timRest->isActive() || timLimit->isActive() || pieces_.isActive() || works_ > 0;
}

void Journal::WriteDue() {
  timRest->stop();
  timLimit->stop();
  for (DocumentJournal *document : documents_) document->RetryIfFailed();
  pieces_.start();
}

void Journal::WritePieces() {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < untilNextEvent && works_ < mostWorks) {
    if (WriteNext()) continue;
    pieces_.stop();
    return;
  }
}

// False if no document is due.
bool Journal::WriteNext() {
  const auto due = std::find_if(documents_.begin(), documents_.end(),
                                [](const DocumentJournal *document) { return document->IsDue(); });
  if (due == documents_.end()) return false;
  (*due)->WriteNext();
  return true;
}

// The disk may have room again by the time that the limit is over.
void Journal::RetryLater() {
  if (!ended_ && !timLimit->isActive()) timLimit->start();
}

void Journal::WriteNow() {
  if (ended_) return;
  WriteDue();
  pieces_.stop();
  while (WriteNext()) {
  }
  thread_.waitForDone();
}

void Journal::End() {
  WriteNow();
  ended_ = true;
}
