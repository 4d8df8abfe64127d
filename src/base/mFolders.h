#pragma once

#include <QString>
#include <QStringList>

/// The folders that the program works in, and the one place that joins a folder and a name.
namespace mFolders {

/// Folder, separator, name. A folder that ends in a separator gives a doubled one, which stays.
QString Join(const QString &folder, const QString &name);

/// What the choice of the program folder depends on.
struct ProgramFolderSources {
  QString environmentFolder;  ///< TAGWRIGHT_FOLDER as it stands, empty if not set
  QString executableFolder;   ///< the folder that the running program lies in
  QString userDataFolder;     ///< $XDG_DATA_HOME/tagwright
  QString sharedDataFolder;   ///< share/tagwright of the installation
  QStringList dataFiles;      ///< names of the delivered data files
};

/// The environment's folder, made absolute, if one is given; else the executable's, if any one of
/// the data files lies in it; else the user's data folder. Touches nothing.
QString ChooseProgramFolder(const ProgramFolderSources &sources);

/// Makes the user's data folder if it doesn't exist: a copy of preferences.dat, and a symbolic link
/// into the shared folder for every other file and folder of it, so that an upgrade reaches them.
/// It is filled under another name and then renamed, so it is there whole or not at all: without a
/// preferences.dat to copy there will be none. A folder that exists is left as it is. False if it
/// doesn't exist afterwards.
bool FillUserDataFolder(const ProgramFolderSources &sources);

/// The program folder of this process: chosen, and filled if it is the user's, at the first call.
/// Without a separator at its end.
const QString &ProgramFolder();

/// Sixteen letters that tell program folders apart, however their paths are written.
QString Mark(const QString &programFolder);

/// The path of a file of the program folder.
QString InProgramFolder(const QString &name);

/// The path of a program that comes with this one and isn't meant to be started by hand: in
/// ../libexec/tagwright of an installation, beside this one where it was built. Empty if there is
/// none.
QString HelperProgram(const QString &name, const QString &executableFolder);

}  // namespace mFolders
