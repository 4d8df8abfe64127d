#pragma once

class QWidget;

/// Gives a widget a font size in points. A size that no font can have, 0 or less, leaves its own.
void SetFontSize(QWidget &widget, double points);

/// Gives a widget the font size that the preferences set for trees and panels; they are read anew.
void SetPanelFont(QWidget &widget);
