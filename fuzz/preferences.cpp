// preferences.dat: what the dialog makes of any record, and what it writes back.

#include "Fuzz.h"
#include "frame/PreferencesChoices.h"
#include "preview/PreviewWay.h"

void Try(Input &input) {
  const QString path = Path(QStringLiteral("preferences.dat"));
  const auto bytes = input.ConsumeRemainingBytes<char>();
  PutFile(path, QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  Preferences record{};
  Require(ReadPreferencesFile(path, record), "a record is read");
  PanelFontSize(record);
  TitleFontSize(PanelFontSize(record));
  for (const Platform &platform : {mPlatform::Original(), mPlatform::Current()}) {
    const QString preview = PreviewFile(record, platform);
    ChoosePreviewWay(record, preview, platform,
                     [](const QString &program) { return program.endsWith(u'e'); });
    IsApplication(record.ApplicationPath.Trimmed(), platform);
  }

  const PreferencesChoices choices = ChoicesOf(record);
  Require(WritePreferencesFile(path, RecordOf(choices)), "a record is written");
  const QByteArray written = FileBytes(path);
  Require(written.size() == sizeof(Preferences), "a whole record is written");
  Require(ReadPreferencesFile(path, record), "a written record is read");
  Require(WritePreferencesFile(path, RecordOf(ChoicesOf(record))), "a record is written again");
  Require(FileBytes(path) == written, "the same choices make the same record");
}
