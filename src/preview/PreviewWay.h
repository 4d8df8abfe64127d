#pragma once

#include <QString>
#include <functional>

#include "base/mPlatform.h"
#include "frame/Preferences.h"

/// What a preview shows a document with.
enum class PreviewWay {
  Nothing,
  BindingCommand,  ///< the preferences' command for a file extension
  Browser,         ///< the application that the system has bound to the file
  Application,     ///< the preferences' own preview application
};

/// Chooses by the preferences. The extension of the file binding counts wherever it stands in the
/// path behind a point, in any letter case. Where a command would run and ApplicationPath names
/// this very program, nothing does: on a platform whose programs have a suffix its name counts
/// anywhere in the text; elsewhere, where it is a common name for a folder too, it has to be the
/// file name of the program that would be started (see ProgramLine::OfCommand for isExecutable).
PreviewWay ChoosePreviewWay(const Preferences &record, const QString &path,
                            const Platform &platform,
                            const std::function<bool(const QString &)> &isExecutable);

/// The file that an unsaved document is shown from.
QString PreviewFile(const Preferences &record, const Platform &platform);
