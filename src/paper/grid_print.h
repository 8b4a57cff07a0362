#pragma once

#include "base/guard.h"
#include "screen/grid_model.h"

class QWidget;

namespace kurbo {

// Opens the preview of a grid as it stands now: its visible rows and columns, the words of its lists, its headings on
// every page.
void PrintGrid(const GridModel& grid, const QString& documentName, const Context& context, QWidget* parent);

} // namespace kurbo
