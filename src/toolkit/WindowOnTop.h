#pragma once

class QWidget;

/// Brings a small window to the front and, unless it is one that shows without activating, makes it
/// the active one, as far as the system lets a program do so; it stays above its owner. With onTop
/// false it keeps its place and nothing happens.
void SetWindowOnTop(QWidget &window, bool onTop);
