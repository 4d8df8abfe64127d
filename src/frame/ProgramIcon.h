#pragma once

#include <QIcon>
#include <QRect>

class QPainter;

/// The program's sign: a pair of angle brackets with the caret between them, in a square of 32
/// units.
void DrawProgramSign(QPainter &painter);

/// The ground of the program's large pictures.
void DrawProgramGround(QPainter &painter, const QRect &place);

/// The sign on its ground, as the icon of the program's windows.
QIcon ProgramIcon();
