#pragma once

#include <QString>
#include <optional>

#include "toolkit/Printer.h"

/// Prints a text as a document of its own. Without a position the text is set in that font size, in
/// points; with one the printer's size stays, and the position says where it stands afterwards.
/// Pumps events. False if the text could not be printed in full.
bool PrintText(Printer &printer, const QString &text, int fontSize,
               std::optional<Printer::Position> position = std::nullopt);

/// Asks how to print and prints the active document, or what is selected in it. What can't be
/// printed is passed over without a word.
void PrintCommand();
