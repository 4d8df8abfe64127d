#pragma once

#include <QString>

/// The standard folder of temporary data. It is made only after the user has agreed, and nothing is
/// written through a folder that somebody else could have put in its place.
namespace TemporaryFolder {

enum class State {
  Usable,   ///< a real folder that belongs to this user
  Missing,  ///< there is nothing of that name
  Foreign,  ///< a symbolic link, somebody else's folder, or no folder at all
};

State Look(const QString &path);

/// Makes the folder for this user alone (mode 0700), and what is missing above it. True if it is
/// usable afterwards.
bool Make(const QString &path);

}  // namespace TemporaryFolder
