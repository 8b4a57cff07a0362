#pragma once

#include "card/card_cells.h"
#include "screen/grid_model.h"

namespace kurbo {

// Fills the grid of a card: row 0 the headings, rows 1 to 3 the summary, the days from row 4 on.
void fillCardGrid(GridModel& grid, const Card& card);

} // namespace kurbo
