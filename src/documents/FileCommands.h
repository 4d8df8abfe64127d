#pragma once

#include <QByteArray>
#include <QString>

class frmHTMLChild;

/// The commands that move text between editor windows and files. They run with errors ignored: a
/// step that fails is skipped without a word, except that Cancel in a dialog ends the command.
namespace FileCommands {

void NewFile();
void Open();

/// Asks, also for a document without changes, and writes the active document.
void Save();

/// Goes through all open documents with a question and a file dialog for each.
void SaveAll();

/// Asks for a name and writes the active document's text as it stands, neither trimmed nor ended by
/// a further line end.
void SaveAs();

/// Asks for a name, writes the bytes there and gives the document that name; it counts as saved
/// whether or not the file took them. False if the user has cancelled or the document has gone
/// meanwhile.
bool PrintUnderNewName(frmHTMLChild &document, const QByteArray &printed);

/// Opens a file in a new window. Nothing happens, and no window opens, if no slot is free or the
/// file can't be loaded. The name is trimmed and made absolute.
void LoadFileIntoNewEditor(const QString &path);

/// The same with the path of a file dropped on the main window, as it stands.
void OpenDroppedFile(const QString &path);

}  // namespace FileCommands
