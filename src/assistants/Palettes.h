#pragma once

#include <QColor>
#include <QList>

/// The colours that are offered for picking, row by row.
struct Palette {
  int columns;
  QList<QColor> colours;

  static Palette Web();        ///< the 216 colours of six levels each, 36 a row
  static Palette GreyScale();  ///< 36 steps from black to white
  static Palette Rainbow();    ///< 36 hues a row, each row darker than the one above
  static Palette Font();       ///< html's sixteen named colours, then eight hues a row
};
