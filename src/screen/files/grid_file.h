#pragma once

#include "screen/grid/grid_model.h"

namespace kurbo {

// A grid as a file: JSON in UTF-8, with all that its cells hold and show. The marks of changed rows aren't kept. Limits
// of a file: 200,000 rows, 64 columns, 32,767 characters a cell, 32 MiB.

// Replaces the file in one step. Throws a Complaint when the grid is beyond the limits, and a Fault when the file can't
// be written; the old file then stays.
void SaveGrid(const GridModel& grid, const QString& file);

// Fills the grid, whose rules stay, from a file; the grid is then drawn, also after Redraw(false). Throws foreignFile()
// when the file is damaged, of another kind, beyond the limits or of a newer version, and a Fault when it can't be
// read; the grid then stays as it was.
void LoadGrid(GridModel& grid, const QString& file);

} // namespace kurbo
