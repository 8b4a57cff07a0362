#pragma once

#include "screen/grid/grid_model.h"
#include "store/client.h"

class QWidget;

namespace kurbo {

// Opens the preview of a grid as it stands now: its visible rows and columns, the words of its lists, its headings on
// every page.
void PrintGrid(const GridModel& grid, const QString& documentName, Client& client, QWidget* parent);

} // namespace kurbo
