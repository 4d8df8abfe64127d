#include "documents/DocumentJournal.h"

#include <algorithm>
#include <utility>

#include "documents/Journal.h"
#include "documents/JournalFile.h"
#include "documents/frmHTMLChild.h"

namespace {

using JournalRecords::Edit;
using JournalRecords::LongestText;

// A log of more is begun anew. Each edit in the middle of a text shifts the rest of it when the log
// is read, a millisecond in 10 MB.
constexpr int mostEdits = 1000;
constexpr qsizetype fewCharacters = 1 << 20;

}  // namespace

DocumentJournal::DocumentJournal(frmHTMLChild *editor)
    : QObject(editor), editor_(editor), journal_(Journal::Current()) {
  if (!journal_) return;
  journal_->Watch(this);
  connect(editor->txthtml, &RichTextBox::Edited, this, &DocumentJournal::Follow);
}

DocumentJournal::~DocumentJournal() {
  if (journal_) journal_->Forget(this);
}

void DocumentJournal::SetDue() {
  if (!journal_ || closed_) return;
  due_ = true;
  journal_->DocumentDue();
}

bool DocumentJournal::IsWanted() const {
  return !closed_ && editor_->txthtml->document()->isModified();
}

// ---- what happens to the document

// An edit behind what has been copied is in the pieces to come.
void DocumentJournal::Follow(int position, int removed, int added) {
  SetDue();
  if (closed_ || position >= copied_) return;
  if (added > LongestText) {
    Begin();
    return;
  }
  Edit edit{position, std::min<qsizetype>(removed, copied_ - position),
            editor_->txthtml->DocumentPiece(position, added)};
  copied_ += edit.text.size() - edit.removed;
  if (edits_.empty() || !Join(edits_.back(), edit)) edits_.push_back(std::move(edit));
}

bool DocumentJournal::Saved(bool written) {
  saveFailed_ = !written;
  // The document knows its saved text, also when undo brings it back.
  editor_->txthtml->document()->setModified(!written);
  if (written) {
    Remove();
  } else {
    SetDue();
  }
  return written;
}

void DocumentJournal::GivenUp() {
  saveFailed_ = false;
}

void DocumentJournal::Closed() {
  if (saveFailed_ && IsWanted()) {
    while (due_) WriteNext();
  } else {
    Remove();
  }
  closed_ = true;
  due_ = false;
}

void DocumentJournal::TakeOver(std::shared_ptr<JournalFile> file) {
  file_ = std::move(file);
  editor_->txthtml->document()->setModified(true);
  SetDue();
}

// ---- writing

void DocumentJournal::Begin() {
  copied_ = 0;
  edits_.clear();
  beginning_ = false;
}

void DocumentJournal::WriteNext() {
  if (!IsWanted()) {
    Remove();
    due_ = false;
    return;
  }
  const RichTextBox &box = *editor_->txthtml;
  const qsizetype length = box.document()->characterCount() - 1;
  if (!file_) file_ = journal_->NewFile();
  const bool tooLong = editsWritten_ > mostEdits || charactersWritten_ > length + fewCharacters;
  if (!beginning_ && (copied_ == 0 || tooLong || file_->Failed())) {
    Begin();
    journal_->Do(file_, &JournalFile::Begin);
    beginning_ = true;
    caption_.clear();
    editsWritten_ = 0;
    charactersWritten_ = 0;
  }

  auto edits = std::exchange(edits_, {});
  editsWritten_ += int(edits.size());
  for (const Edit &edit : edits) charactersWritten_ += edit.text.size();
  if (copied_ < length) {
    const QString piece = box.DocumentPiece(int(copied_), LongestText);
    edits.push_back({copied_, 0, piece});
    copied_ += piece.size();
  }
  due_ = copied_ < length;
  const bool newCaption = caption_ != editor_->Caption();
  caption_ = editor_->Caption();
  journal_->Do(file_, [edits = std::move(edits), caption = newCaption ? caption_ : QString(),
                       whole = !due_, inPlace = !beginning_](JournalFile &file) {
    QByteArray records;
    if (!caption.isEmpty()) records += JournalRecords::OfCaption(caption);
    for (const Edit &edit : edits) records += JournalRecords::OfEdit(edit);
    file.Append(records);
    if (whole) inPlace ? file.Sync() : file.Commit();
  });
  if (!due_) beginning_ = false;
}

void DocumentJournal::RetryIfFailed() {
  if (file_ && file_->Failed()) due_ = true;
}

void DocumentJournal::Remove() {
  if (file_) journal_->Do(file_, &JournalFile::Remove);
  file_.reset();
  Begin();
}
