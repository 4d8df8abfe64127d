#pragma once

#include <QIcon>

class QPainter;

/// An icon that is drawn anew for each size, so that it is sharp at any scale. draw works in a
/// square of units by units, antialiased.
QIcon DrawnIcon(int units, void (*draw)(QPainter &));
