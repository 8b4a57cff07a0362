#pragma once

#include "screen/grid/grid_model.h"
#include "store/connection.h"
#include "totals/csv/csv_file.h"

namespace kurbo {

// Fills the grid in which months out of CSV files are looked at: column 0 the file, then the names of person and
// section where the database knows them, and the codes elsewhere. `countUnit` 0 is decimal hours, 1 h:mm. Throws a
// Fault.
void fillCsvGrid(Connection& connection, GridModel& grid, const QList<LoadedMonth>& months, int countUnit);

// The long name of a column for its short heading; empty where the heading is the name.
[[nodiscard]] QString csvHeadingTip(int column);

} // namespace kurbo
