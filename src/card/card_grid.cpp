#include "card/card_grid.h"

#include <array>

namespace kurbo {
namespace {

constexpr GridColour summaryPaper{232, 238, 246};

Twips widthOf(CardColumn column) {
    switch (column) {
    case CardColumn::Date:
    case CardColumn::Plan:
    case CardColumn::Enter:
    case CardColumn::Leave:
        return Twips(1400);
    case CardColumn::WorkTime:
        return Twips(600);
    default:
        break;
    }
    const QuantityFacts* const facts = quantityAt(column);
    if (!facts) return Twips(500);
    return facts->unit() == Unit::Time ? Twips(900) : Twips(600);
}

// Holidays red, half holidays blue.
std::optional<GridColour> dateColour(const QString& type) {
    if (type == u"0" || type == u"3") return GridColour{255, 0, 0};
    if (type == u"1" || type == u"2") return GridColour{0, 0, 255};
    return {};
}

void describeColumns(GridModel& grid, const Card& card) {
    for (int column = 0; column < cardColumns; ++column) {
        grid.ColAlignment(column, GridAlign::Centre);
        grid.ColWidth(column, widthOf(static_cast<CardColumn>(column)));
        grid.ColHidden(column, card.hidden[static_cast<std::size_t>(column)]);
    }
    grid.ColAlignment(static_cast<int>(CardColumn::Plan), GridAlign::Left);
    grid.ColComboList(static_cast<int>(CardColumn::Holiday), QStringLiteral("|#0;全日|#1;午前|#2;午後|#3;法定休日"));
}

} // namespace

void fillCardGrid(GridModel& grid, const Card& card) {
    const Undrawn undrawn(grid);
    grid.reset({.rows = firstCardDay + static_cast<int>(card.days.size()),
                .columns = cardColumns,
                .frozenRows = firstCardDay - 1,
                .frozenColumns = 1});
    grid.MarkEdits(true);
    describeColumns(grid, card);
    grid.fillRow(0, card.headings);
    for (int row = 1; row < firstCardDay; ++row) {
        grid.fillRow(row, card.summary[static_cast<std::size_t>(row - 1)]);
        grid.RowBackColor(row, summaryPaper);
    }
    for (int i = 0; i < card.days.size(); ++i) {
        const QStringList& cells = card.days[i];
        grid.fillRow(firstCardDay + i, cells);
        if (const auto colour = dateColour(cells[static_cast<int>(CardColumn::Holiday)]))
            grid.CellForeColor(firstCardDay + i, static_cast<int>(CardColumn::Date), colour);
    }
}

} // namespace kurbo
