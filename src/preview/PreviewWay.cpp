#include "preview/PreviewWay.h"

#include "base/ProgramLine.h"
#include "base/mText.h"

namespace {

bool NamesThisProgram(const QString &application, const Platform &platform,
                      const std::function<bool(const QString &)> &isExecutable) {
  if (!platform.executableSuffix.isEmpty()) {
    return mText::InStr(1, application, platform.ownProgram, Qt::CaseInsensitive) > 0;
  }
  const QString program = ProgramLine::OfCommand(application, isExecutable).program;
  return program.section(platform.separator, -1)
             .compare(platform.ownProgram, Qt::CaseInsensitive) == 0;
}

}  // namespace

PreviewWay ChoosePreviewWay(const Preferences &record, const QString &path,
                            const Platform &platform,
                            const std::function<bool(const QString &)> &isExecutable) {
  const QString extension = u'.' + record.FileExtension.Trimmed();
  const bool bound =
      record.FileBinding && mText::InStr(1, path, extension, Qt::CaseInsensitive) > 0;
  if (!bound && !record.OtherPreViewer) return PreviewWay::Browser;
  if (!bound && record.FileBinding) return PreviewWay::Nothing;
  if (NamesThisProgram(record.ApplicationPath.Trimmed(), platform, isExecutable)) {
    return PreviewWay::Nothing;
  }
  return bound ? PreviewWay::BindingCommand : PreviewWay::Application;
}

QString PreviewFile(const Preferences &record, const Platform &platform) {
  QString folder =
      record.TemporaryPathStandard ? platform.temporaryFolder : record.OtherTemporaryPath.Trimmed();
  if (!folder.endsWith(platform.separator)) folder += platform.separator;
  return folder + QStringLiteral("0001.html");
}
