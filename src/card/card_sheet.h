#pragma once

#include "screen/grid/grid_model.h"

#include <functional>
#include <set>

namespace kurbo {

// The card on the screen: the grid as its working copy, and what has been done to it since it was drawn.
struct CardSheet {
    GridModel grid;
    // A day row, or a summary row, was edited.
    bool blnCardChanged = false;
    bool blnMonthChanged = false;
    // A card out of a card file is shown.
    bool blnFileMode = false;
    // Rows whose cell of that punch was really edited: the grid shows minutes, and the punches that were not touched
    // keep their stored seconds.
    std::set<int> enterEdited;
    std::set<int> leaveEdited;

    // Told after every edit.
    std::function<void()> onEdit;

    [[nodiscard]] bool blnEnterEdited(int row) const { return enterEdited.contains(row); }
    [[nodiscard]] bool blnLeaveEdited(int row) const { return leaveEdited.contains(row); }
    // The card has been drawn anew.
    void drawn() {
        blnCardChanged = blnMonthChanged = blnFileMode = false;
        enterEdited.clear();
        leaveEdited.clear();
        grid.clearRowStatus();
    }
};

} // namespace kurbo
