#pragma once

#include <QString>

/// What differs between the two platforms whose rules the program knows, as plain values. Rules
/// that depend on it take it as an argument, so both platforms' rules can be tested on either.
struct Platform {
  QString separator;        ///< between folder and name
  QString temporaryFolder;  ///< the standard folder of temporary data, without separator at its end
  QString executableSuffix;  ///< lower case; empty where a file's mode tells what is executable
  QString javaCompiler;      ///< file names of the programs as they are looked for
  QString appletViewer;
  QString ownProgram;
  bool driveLetters;  ///< paths begin with a drive letter and a colon
};

namespace mPlatform {

/// The platform that the program's names come from: "\", C:\Temp, ".exe".
const Platform &Original();

/// The platform that it runs on. temporaryFolder is $XDG_CACHE_HOME/tagwright, taken from the
/// environment at the first call.
const Platform &Current();

/// The words C:\TEMP, in any letter case, inside a message or caption replaced by the platform's
/// own folder; every other letter stays. On the original platform the text comes back as it is.
QString WithTemporaryFolder(const QString &text, const Platform &platform);

}  // namespace mPlatform
