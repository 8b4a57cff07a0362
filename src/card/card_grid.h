#pragma once

#include "card/card_cells.h"
#include "screen/grid/grid_model.h"

namespace kurbo {

// The grid's row of the first day.
inline constexpr int firstCardDay = 4;
// The rows of what the days add up to, and of what counts for the month.
inline constexpr int daySumRow = 2;
inline constexpr int finalSumRow = 3;

// Fills the grid of a card: row 0 the headings, rows 1 to 3 the summary, the days from row 4 on.
void fillCardGrid(GridModel& grid, const Card& card);

// A cell's text by its column.
[[nodiscard]] inline QString cardText(const GridModel& grid, int row, CardColumn column) {
    return grid.TextMatrix(row, static_cast<int>(column));
}

} // namespace kurbo
