#pragma once

#include "screen/grid/grid_model.h"
#include "totals/total_lines.h"

namespace kurbo {

// Fills the grid of the totals: row 0 the headings, then their lines.
void fillTotalGrid(GridModel& grid, const Totals& totals, const std::vector<TotalLine>& lines);

} // namespace kurbo
