#include "documents/JournalRecords.h"

#include <QCryptographicHash>
#include <algorithm>

#include "base/LittleEndian.h"
#include "base/TextFile.h"
#include "base/mAnsi.h"

namespace JournalRecords {

namespace {

enum Kind : quint8 { Caption = 1, TextEdit = 2 };

struct Head {
  Kind kind;
  LittleEndian<quint32> position;
  LittleEndian<quint32> removed;
  LittleEndian<quint32> size;
};
static_assert(sizeof(Head) == 13);

struct Record {
  Head head;
  QByteArray bytes;
};

constexpr auto digestKind = QCryptographicHash::Blake2s_128;
constexpr qsizetype digestSize = 16;

// More than any journal has; they keep a made-up one from filling the memory, or a start from
// shifting large texts without end.
constexpr qsizetype longestBytes = 1 << 20;
constexpr qsizetype longestDocument = 1 << 30;
constexpr int mostShifts = 10'000;

QByteArray Digest(QByteArrayView record) {
  return QCryptographicHash::hash(record.toByteArray(), digestKind);
}

QByteArray Bytes(Kind kind, qsizetype position, qsizetype removed, const QByteArray &bytes) {
  Head head{.kind = kind, .position = {}, .removed = {}, .size = {}};
  head.position = quint32(position);
  head.removed = quint32(removed);
  head.size = quint32(bytes.size());
  const QByteArray record(reinterpret_cast<const char *>(&head), sizeof head);
  const QByteArray whole = record + bytes;
  return whole + Digest(whole);
}

std::optional<Record> ReadRecord(QIODevice &log) {
  Record record{};
  auto *head = reinterpret_cast<char *>(&record.head);
  if (log.read(head, sizeof record.head) != sizeof record.head) return std::nullopt;
  const qsizetype size = record.head.size;
  if (size > longestBytes) return std::nullopt;
  record.bytes = log.read(size);
  if (record.bytes.size() != size) return std::nullopt;
  const QByteArray told(head, sizeof record.head);
  if (log.read(digestSize) != Digest(told + record.bytes)) return std::nullopt;
  return record;
}

// A text that grows by the records of a log.
class Replay {
 public:
  // False, with everything as it was, if the record can't follow on those before it.
  bool Apply(const Record &record) {
    switch (record.head.kind) {
      case Caption:
        caption = QString::fromUtf8(record.bytes);
        return true;
      case TextEdit:
        return Put(record.head.position, record.head.removed, record.bytes);
      default:
        return false;
    }
  }

  QString caption;
  QByteArray text;

 private:
  bool Put(qsizetype position, qsizetype removed, const QByteArray &bytes) {
    if (position + removed > text.size()) return false;
    if (text.size() - removed + bytes.size() > longestDocument) return false;
    if (position + removed < text.size() && ++shifts_ > mostShifts) return false;
    text.replace(position, removed, bytes);
    return true;
  }

  int shifts_ = 0;
};

}  // namespace

bool Join(Edit &first, const Edit &second) {
  const qsizetype firstEnd = first.position + first.text.size();
  const qsizetype secondEnd = second.position + second.removed;
  if (second.position > firstEnd || secondEnd < first.position) return false;
  const qsizetype before = std::max<qsizetype>(first.position - second.position, 0);
  const qsizetype behind = std::max<qsizetype>(secondEnd - firstEnd, 0);
  const qsizetype within = second.removed - before - behind;
  if (first.text.size() - within + second.text.size() > LongestText) return false;
  first.text.replace(std::max<qsizetype>(second.position - first.position, 0), within, second.text);
  first.removed += before + behind;
  first.position = std::min(first.position, second.position);
  return true;
}

QByteArray Heading() {
  return QByteArrayLiteral("tagwright journal 1\n");
}

QByteArray OfCaption(const QString &caption) {
  return Bytes(Caption, 0, 0, caption.toUtf8());
}

QByteArray OfEdit(const Edit &edit) {
  return Bytes(TextEdit, edit.position, edit.removed, mAnsi::ToAnsi(edit.text));
}

std::optional<Document> Read(QIODevice &log) {
  if (log.read(Heading().size()) != Heading()) return std::nullopt;
  Replay replay;
  bool whole = true;
  while (whole && !log.atEnd()) {
    const auto record = ReadRecord(log);
    whole = record && replay.Apply(*record);
  }
  if (replay.caption.isEmpty()) return std::nullopt;
  Document document{replay.caption, mAnsi::FromAnsi(replay.text), whole};
  if (TextFile::LongestLineIn(document.text) > TextFile::LongestLine) return std::nullopt;
  return document;
}

}  // namespace JournalRecords
