#pragma once

#include <QColor>

/// A colour dialog that a form keeps: it remembers its colour between calls.
class ColourDialog {
 public:
  QColor Color = Qt::black;  ///< the last choice, kept after Cancel; where the next call begins

  /// Shows the dialog. False after Cancel.
  bool ShowColor();
};
