#pragma once

#include "screen/grid/grid_model.h"

namespace kurbo {

// A rectangle of cells, both ends included; rows and columns count from 0.
struct GridSelection {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
};

// The selection with the headings that belong to it: all rows behind the fixed ones take these along, and so do all
// columns.
[[nodiscard]] GridSelection withHeadings(const GridModel& grid, GridSelection selection);

struct GridCopy {
    QString shown; // what the cells show
    QString held;  // what they hold
};

// The selection as text: a line of each row that isn't hidden, ended by CR LF, its cells parted by tabs.
[[nodiscard]] GridCopy copiedCells(const GridModel& grid, GridSelection selection);

// Writes text of that form, also with other line ends, over the selection: no more than the selection and no more than
// the text. Hidden rows and columns take no field; fixed cells and cells that may not be edited take one and stay as
// they are. A row with fewer fields than the first goes on with those of the next one. Throws a Complaint, and changes
// nothing, when no cell of the selection may be edited or a field doesn't fit its column's type.
void pasteCells(GridModel& grid, GridSelection selection, const QString& text);

// Empties the cells that may be edited.
void clearCells(GridModel& grid, GridSelection selection);

} // namespace kurbo
