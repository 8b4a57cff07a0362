#pragma once

#include "month/saved_figures.h"
#include "screen/grid/grid_model.h"
#include "totals/total_lines.h"

#include <functional>
#include <map>

namespace kurbo {

// What a row of the totals stands for, beside the cells that show it.
struct TotalEntry {
    LineKind kind = LineKind::Month;
    // The name, or the month, under which the row stands.
    QString group;
    // Of a person's month.
    QString staff;
    std::chrono::year_month month{};
    // It came out of the store, where it may be corrected.
    bool saved = false;
    // Of those whose rules are at fault nothing is known.
    bool hasFigures = false;
    // What has been typed into it since it was drawn.
    std::map<Quantity, FigureEntry> edits;
};

// The totals on the screen: their rows, the grid that shows them, and what has been done to them since they were drawn.
struct TotalSheet {
    GridModel grid;
    std::vector<TotalEntry> rows;
    bool byStaff = true;
    bool changed = false;
    // Totals out of a card file are shown.
    bool blnFileMode = false;
    int plngCountUnit = 1; // 0 decimal, 1 h:mm
    // Told after every edit.
    std::function<void()> onEdit;

    // Draws totals; nothing of them has been changed then.
    void show(const Totals& totals);
    // What a grid's row stands for; none for the headings.
    [[nodiscard]] const TotalEntry* at(int row) const;
    [[nodiscard]] TotalEntry* at(int row);
};

// Calculates and draws. `question.byStaff` becomes the order in which they stand. Nothing when that failed or the
// person closed the progress: the sheet is as it was. Failures are reported.
[[nodiscard]] std::optional<Totals> ShowTotal(const Context& context, Connection& connection, TotalsQuestion& question,
                                              TotalSheet& sheet);

// Takes over what an image of totals shows, which was drawn on a sheet like this one.
void readImage(TotalSheet& sheet);

} // namespace kurbo
