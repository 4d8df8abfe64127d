#pragma once

#include <QSize>

#include "assistants/Palettes.h"

class CellGrid;

/// Fills a grid with a palette's colours, each cell named by its value. cellSize in pixels.
void ShowPalette(CellGrid &grid, const Palette &palette, QSize cellSize);
