#pragma once

#include <QString>

/// What the first nine buttons of the format strip write around the selection.
struct FormatText {
  QString opening;
  QString closing;

  /// Of the buttons 2 to 9: bold, italic and the like. Empty for every other button.
  static FormatText OfButton(int button);

  /// Of button 1. colour is "#" and six digits; sizeIndex counts the entries of the size list from
  /// 0, of which number 2 is the page's own size and writes none.
  static FormatText OfFont(int sizeIndex, const QString &fontName, const QString &colour);
};
