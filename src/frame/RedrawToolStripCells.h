#pragma once

/// Takes the raised or sunken look from every cell of the drawn strips. Nothing to do, and nothing
/// pumped, while no cell has one.
void RedrawToolStripCells();
