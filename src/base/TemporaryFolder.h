#pragma once

#include <QString>

/// The folder for temporary data, which is made only after the user has agreed. Others can write
/// beside it, so what stands there is looked at before it is trusted.
namespace TemporaryFolder {

enum class State {
  Missing,
  Usable,
  Foreign,  ///< a symbolic link, no folder at all, or somebody else's
};

State StateOf(const QString &folder);

/// Makes the folder for this user alone (mode 0700), and the folders above it where they are
/// missing. False if it couldn't, also if something stands there already.
bool Make(const QString &folder);

}  // namespace TemporaryFolder
