#pragma once

#include <QString>

#include "base/mPlatform.h"
#include "frame/Preferences.h"

/// What the controls of the preferences dialog hold. Of each pair of options it is kept whether the
/// second one, the user's own setting, is chosen.
struct PreferencesChoices {
  /// The index of a group of options none of which is set.
  static constexpr int None = -1;

  bool otherPreviewer = false;
  QString applicationPath;
  bool fileBinding = false;
  QString fileExtension;
  QString fileBindingCommand;

  bool otherImageSettings = false;
  int imageHeight = None;  ///< 0 to 3, as in the record
  int imageWidth = None;
  int shapeColor = None;
  bool showFilenames = false;
  bool showImageBorder = false;

  bool showStartWindow = false;
  bool forceDatabaseLoading = false;
  bool otherAppFont = false;
  int appFontSize = None;

  bool otherEditorSettings = false;
  QString fontName;  ///< selected in the list, empty if none is
  QString fontSize;  ///< selected in the list, empty if none is
  QString tabulatorCount;

  bool otherStencilsFolder = false;
  QString stencilsFolder;
  bool otherTemporaryFolder = false;
  QString temporaryFolder;
  QString compilerPath;
  QString appletViewerPath;

  bool operator==(const PreferencesChoices &) const = default;
};

/// What the dialog shows of a record. Of a pair with both flags set the second counts, of one with
/// none the first; an index that no option has sets none.
PreferencesChoices ChoicesOf(const Preferences &record);

/// The record of what the dialog holds, with exactly one flag of each pair set. Texts are trimmed
/// and cut to their fields; a folder or an editor font size that isn't there falls back to the
/// standard one, a count beyond 0 to 32,767 to 0.
Preferences RecordOf(const PreferencesChoices &choices);

/// Whether a file can be chosen as preview application: the platform's suffix of programs stands in
/// its name behind the first character, in that letter case; without such a suffix its mode tells.
bool IsApplication(const QString &path, const Platform &platform);
