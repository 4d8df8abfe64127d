// The journal of a document: sound records, some of which don't follow on those before, and bytes.

#include <QBuffer>

#include "Fuzz.h"
#include "documents/JournalRecords.h"

void Try(Input &input) {
  QByteArray log = JournalRecords::Heading() + JournalRecords::OfCaption(QStringLiteral("a.html"));
  QString text;
  bool whole = true;
  for (int records = input.ConsumeIntegralInRange(0, 40); records > 0; --records) {
    const JournalRecords::Edit edit{input.ConsumeIntegralInRange(0, 300),
                                    input.ConsumeIntegralInRange(0, 300), TakeText(input, 200)};
    log += JournalRecords::OfEdit(edit);
    whole = whole && edit.position + edit.removed <= text.size();
    if (whole) text.replace(edit.position, edit.removed, edit.text);
  }
  const QByteArray behind = TakeBytes(input, 1000);
  log += behind;
  QBuffer device(&log);
  device.open(QIODevice::ReadOnly);
  const auto document = JournalRecords::Read(device);
  Require(document.has_value(), "a document with a name is found");
  // No bytes of chance have a sound digest.
  Require(document->text == text, "the text is that of the sound records");
  for (QByteArray foreign : {behind, JournalRecords::Heading() + behind}) {
    QBuffer file(&foreign);
    file.open(QIODevice::ReadOnly);
    Require(!JournalRecords::Read(file), "bytes of chance are no journal");
  }
  Require(document->whole == (whole && behind.isEmpty()), "what is damaged is told");
}
