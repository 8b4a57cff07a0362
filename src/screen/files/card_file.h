#pragma once

#include "base/prompts.h"
#include "screen/grid/grid_model.h"

#include <functional>

namespace kurbo {

// What is only looked at out of a card file can't be worked on: "タイムカードファイルを呼出した状態で<command>は…".
[[nodiscard]] QString fileModeText(const QString& command);
// Says so in file mode; true then.
[[nodiscard]] bool refusesFileMode(Prompts& prompts, bool blnFileMode, const QString& command);

// The file dialogs' filter of card files.
[[nodiscard]] QString cardFileFilter();

// A card file: an archive of a screen's grid, in a member whose name tells the screen, and of its selection in
// "Text.tmp". The scratch files lie in a folder that no other client knows.

// Puts both members into `file`, in one step: after a failure the old file is still there. Throws foreignFile() when an
// existing file is no card file of this screen, and a Fault when it can't be written.
void saveCardFile(const QString& file, const QString& member, const GridModel& grid, const QStringList& selection);

// Fills the grid and gives the four texts of the selection. Throws foreignFile() for anything but a card file of this
// screen, whose grid has so many columns; `check` may throw over the selection. The grid then stays as it was.
using CheckSelection = std::function<void(const QStringList& selection)>;
[[nodiscard]] QStringList loadCardFile(const QString& file, const QString& member, int columns, GridModel& grid,
                                       const CheckSelection& check = {});

} // namespace kurbo
