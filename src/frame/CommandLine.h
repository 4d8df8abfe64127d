#pragma once

#include <QString>

/// The command line behind the program's own name as one text, its words joined by one blank each.
QString CommandLineText(int argc, const char *const *argv);
