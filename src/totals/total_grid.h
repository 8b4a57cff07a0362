#pragma once

#include "screen/grid/grid_model.h"
#include "totals/totals.h"

namespace kurbo {

// Fills the grid of the totals: row 0 the headings, then the months with their sub-totals and the total.
void fillTotalGrid(GridModel& grid, const Totals& totals);

// Calculates and fills. `question.byStaff` becomes the order in which they stand. Nothing when that failed or the
// person closed the progress: the grid is as it was. Failures are reported.
[[nodiscard]] std::optional<Totals> ShowTotal(const Context& context, Connection& connection, TotalsQuestion& question,
                                              GridModel& grid);

} // namespace kurbo
