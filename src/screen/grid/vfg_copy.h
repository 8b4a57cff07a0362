#pragma once

#include "base/guard.h"
#include "screen/grid/grid.h"

namespace kurbo {

// Copies the selection to the clipboard as the grid shows it; `withRaw` also fills `rawText` with what the cells hold.
void VfgCopy(const Grid& grid, bool withRaw, QString& rawText);

// Pastes `givenText`, or the clipboard's text when it is empty, over the selection. A refusal is told and changes
// nothing; then the result is false.
bool VfgPaste(const Context& context, Grid& grid, const QString& givenText);

// Gives the three entries of a grid's menu their work, for as long as the grid is in view: several grids may share a
// menu. What mnuGCopy took, mnuGPaste prefers to the clipboard from then on, in all grids of the program.
void wireGridMenu(Grid& grid, const Context& context, QMenu* mnuGrid, QAction* mnuGCopy, QAction* mnuGPaste,
                  QAction* mnuGClear);

} // namespace kurbo
