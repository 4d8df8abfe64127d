#include "frame/Preferences.h"

#include "base/RecordFile.h"
#include "base/WholeFile.h"

Preferences StandardPreferences() {
  Preferences record{};
  record.StandardImageSettings = true;
  record.StandartWebBrowser = true;
  record.ApplicationPath.Set({});
  record.UseAppStandard = true;
  record.SelfStencilsStandardPath = true;
  record.OtherStencilsPath.Set({});
  record.ShowStartWindow = true;
  record.EditorStandardSettings = true;
  record.EditorFontName.Set(u"Courier New");
  record.EditorFontSize = 10;
  record.TabulatorCount = 4;
  record.TemporaryPathStandard = true;
  record.OtherTemporaryPath.Set({});
  record.FileExtension.Set({});
  record.FileBindingCommand.Set({});
  record.CompilerPath.Set({});
  record.AppletViewerPath.Set({});
  return record;
}

bool ReadPreferencesFile(const QString &path, Preferences &record) {
  return RecordFile<Preferences>(path).Get(1, record);
}

bool WritePreferencesFile(const QString &path, const Preferences &record, QString *error) {
  return WriteWholeFile(path, {reinterpret_cast<const char *>(&record), sizeof record}, error);
}

double PanelFontSize(const Preferences &record) {
  if (!record.UseOtherAppProperties) return 8.0;
  switch (record.AppFontSize) {
    case 0:
      return 8.0;
    case 1:
      return 10.0;
    case 2:
      return 12.0;
    case 3:
      return 14.0;
    default:
      return 0.0;
  }
}

double TitleFontSize(double panelFontSize) {
  return panelFontSize <= 8.0 ? panelFontSize : panelFontSize - 2.0;
}
