#pragma once

class QWidget;

/// Gives a list the font size that the preferences set for trees and panels; the preferences are
/// read anew. A size that no font can have leaves the list's own.
void SetPanelFont(QWidget &list);
