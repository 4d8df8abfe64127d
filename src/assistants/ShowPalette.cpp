#include "assistants/ShowPalette.h"

#include <QPainter>

#include "toolkit/CellGrid.h"

void ShowPalette(CellGrid &grid, const Palette &palette, QSize cellSize) {
  QStringList names;
  for (const QColor &colour : palette.colours) names << colour.name();
  grid.SetCells(palette.columns, cellSize, names,
                [colours = palette.colours](QPainter &painter, const QRect &cell, int number) {
                  painter.fillRect(cell, colours[number - 1]);
                });
}
