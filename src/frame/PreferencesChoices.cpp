#include "frame/PreferencesChoices.h"

#include <QFileInfo>

#include "base/mText.h"

namespace {

constexpr int optionCount = 4;  // of every group of options that is stored as an index

int OptionOf(qint32 index) {
  return index >= 0 && index < optionCount ? int(index) : PreferencesChoices::None;
}

int IndexOf(int option) {
  return option == PreferencesChoices::None ? 0 : option;
}

void SetPair(FlagField &standard, FlagField &other, bool isOther) {
  standard = !isOther;
  other = isOther;
}

template <int N>
void SetText(FixedText<N> &field, const QString &text) {
  field.Set(mText::Trim(text));
}

}  // namespace

PreferencesChoices ChoicesOf(const Preferences &record) {
  return {
      .otherPreviewer = record.OtherPreViewer,
      .applicationPath = record.ApplicationPath.Trimmed(),
      .fileBinding = record.FileBinding,
      .fileExtension = record.FileExtension.Trimmed(),
      .fileBindingCommand = record.FileBindingCommand.Trimmed(),
      .otherImageSettings = record.OtherImageSettings,
      .imageHeight = OptionOf(record.ImageHeight),
      .imageWidth = OptionOf(record.ImageWidth),
      .shapeColor = OptionOf(record.ShapeColor),
      .showFilenames = record.ShowFilenames == 1,
      .showImageBorder = record.ShowImageBorder == 1,
      .showStartWindow = record.ShowStartWindow,
      .forceDatabaseLoading = record.ForceDatabaseLoading,
      .otherAppFont = record.UseOtherAppProperties,
      .appFontSize = OptionOf(record.AppFontSize),
      .otherEditorSettings = !record.EditorStandardSettings,
      .fontName = record.EditorFontName.Trimmed(),
      .fontSize = mText::NumberText(record.EditorFontSize),
      .tabulatorCount = mText::NumberText(record.TabulatorCount),
      .otherStencilsFolder = record.SelfStencilsOtherPath,
      .stencilsFolder = record.OtherStencilsPath.Trimmed(),
      .otherTemporaryFolder = !record.TemporaryPathStandard,
      .temporaryFolder = record.OtherTemporaryPath.Trimmed(),
      .compilerPath = record.CompilerPath.Trimmed(),
      .appletViewerPath = record.AppletViewerPath.Trimmed(),
  };
}

Preferences RecordOf(const PreferencesChoices &choices) {
  Preferences record{};
  record.EditorFontName.Set({});
  record.EditorFontSize = 10;

  SetPair(record.StandardImageSettings, record.OtherImageSettings, choices.otherImageSettings);
  record.ImageHeight = IndexOf(choices.imageHeight);
  record.ImageWidth = IndexOf(choices.imageWidth);
  record.ShowFilenames = choices.showFilenames ? 1 : 0;
  record.ShowImageBorder = choices.showImageBorder ? 1 : 0;
  record.ShapeColor = quint8(IndexOf(choices.shapeColor));

  SetPair(record.StandartWebBrowser, record.OtherPreViewer, choices.otherPreviewer);
  SetText(record.ApplicationPath, choices.applicationPath);

  SetPair(record.UseAppStandard, record.UseOtherAppProperties, choices.otherAppFont);
  record.ShowStartWindow = choices.showStartWindow;
  record.ForceDatabaseLoading = choices.forceDatabaseLoading;
  record.AppFontSize = IndexOf(choices.appFontSize);

  SetText(record.OtherStencilsPath, choices.stencilsFolder);
  SetPair(record.SelfStencilsStandardPath, record.SelfStencilsOtherPath,
          choices.otherStencilsFolder && !record.OtherStencilsPath.IsBlank());

  record.EditorStandardSettings = !choices.otherEditorSettings;
  if (choices.otherEditorSettings) {
    record.EditorFontName.Set(choices.fontName);
    if (!choices.fontSize.isEmpty()) record.EditorFontSize = mText::CountOf(choices.fontSize);
    record.TabulatorCount = mText::CountOf(choices.tabulatorCount);
  } else {
    record.EditorFontName.Set(u"Courier New");
    record.TabulatorCount = 4;
  }

  SetText(record.OtherTemporaryPath, choices.temporaryFolder);
  record.TemporaryPathStandard =
      !choices.otherTemporaryFolder || record.OtherTemporaryPath.IsBlank();

  record.FileBinding = choices.fileBinding;
  SetText(record.FileExtension, choices.fileBinding ? choices.fileExtension : QString());
  SetText(record.FileBindingCommand, choices.fileBinding ? choices.fileBindingCommand : QString());

  SetText(record.CompilerPath, choices.compilerPath);
  SetText(record.AppletViewerPath, choices.appletViewerPath);
  return record;
}

bool IsApplication(const QString &path, const Platform &platform) {
  if (platform.executableSuffix.isEmpty()) {
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
  }
  const QString title = path.mid(path.lastIndexOf(platform.separator) + 1);
  return mText::InStr(2, title, platform.executableSuffix) > 0;
}
