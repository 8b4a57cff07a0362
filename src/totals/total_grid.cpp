#include "totals/total_grid.h"

namespace kurbo {
namespace {

constexpr GridColour subTotalPaper{232, 238, 246};
constexpr GridColour totalPaper{210, 222, 238};

// A name has 20 bytes, and a sub-total's words behind it.
Twips widthOf(TotalColumn column) {
    switch (column) {
    case TotalColumn::Blank:
        return Twips(300);
    case TotalColumn::First:
        return Twips(2200);
    case TotalColumn::Second:
        return Twips(1650);
    case TotalColumn::Term:
        return Twips(2500);
    case TotalColumn::Personal:
    case TotalColumn::Superior:
        return Twips(600);
    default:
        break;
    }
    const QuantityFacts* const facts = quantityAt(column);
    return facts && facts->shown && facts->unit() != Unit::Time ? Twips(600) : Twips(900);
}

// A column is as wide as its sums ask for: nothing in it is longer, but for headings and names.
void describeColumns(GridModel& grid, const Totals& totals, const std::vector<TotalLine>& lines) {
    constexpr int sign = 115;
    constexpr int edges = 100;
    for (int column = 0; column < totalColumns; ++column) {
        const qsizetype length = lines.empty() ? 0 : lines.back().cells[column].size();
        grid.ColWidth(column, std::max(widthOf(static_cast<TotalColumn>(column)),
                                       Twips(static_cast<int>(length) * sign + edges)));
        grid.ColHidden(column, totals.hidden[static_cast<std::size_t>(column)]);
    }
    // Shown as words: a box would stand on sub-totals as well.
    for (const TotalColumn column : {TotalColumn::Personal, TotalColumn::Superior})
        grid.ColComboList(static_cast<int>(column), QStringLiteral("#0;未|#-1;済"));
}

} // namespace

void fillTotalGrid(GridModel& grid, const Totals& totals, const std::vector<TotalLine>& lines) {
    const Undrawn undrawn(grid);
    grid.reset({.rows = 1 + static_cast<int>(lines.size()), .columns = totalColumns, .frozenColumns = 2});
    grid.FormatString(totalHeadings(totals.byStaff));
    describeColumns(grid, totals, lines);
    int row = 0;
    for (const TotalLine& line : lines) {
        grid.fillRow(++row, line.cells);
        if (line.kind != LineKind::Month) grid.RowBackColor(row, subTotalPaper);
    }
    if (row > 0) grid.RowBackColor(row, totalPaper);
}

} // namespace kurbo
