#pragma once

#include <QIcon>

class QPainter;

/// The program's sign: a pair of angle brackets with the caret between them, in a square of 32
/// units.
void DrawProgramSign(QPainter &painter);

/// The sign on its ground, as the icon of the program's windows.
QIcon ProgramIcon();
