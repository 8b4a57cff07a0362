#pragma once

#include "card/card_cells.h"
#include "screen/grid/grid_model.h"

#include <functional>

namespace kurbo {

// The card on the screen: its rows, the grid that shows them, and what has been done to them since it was drawn.
struct CardSheet {
    GridModel grid;
    // The day rows, and the final sums in the places of their quantities: what is typed into a cell is read here at
    // once.
    std::vector<CardEntry> days;
    std::array<FigureEntry, quantityCount> finals;
    FigureList sums; // what the days add up to
    // A day row, or a summary row, was edited.
    bool blnCardChanged = false;
    bool blnMonthChanged = false;
    // A card out of a card file is shown.
    bool blnFileMode = false;

    // Told after every edit.
    std::function<void()> onEdit;

    // Draws a card.
    void show(Card card);
    // Nothing has been changed any more, and no card file is shown.
    void drawn();

    // The day of a grid's row; none for the rows above the days.
    [[nodiscard]] const CardEntry* dayAt(int row) const;
    [[nodiscard]] CardEntry* dayAt(int row);
    // The days whose rows the person has changed.
    [[nodiscard]] std::vector<const CardEntry*> changedDays() const;
    // A punch's cell was really edited.
    [[nodiscard]] bool blnEnterEdited(int row) const { return dayAt(row) && dayAt(row)->enterEdited; }
    [[nodiscard]] bool blnLeaveEdited(int row) const { return dayAt(row) && dayAt(row)->leaveEdited; }
};

} // namespace kurbo
