#include "card/card_grid.h"

namespace kurbo {
namespace {

constexpr int firstDay = 4;

void writeRow(GridModel& grid, int row, const QStringList& cells) {
    for (int column = 0; column < cells.size(); ++column) grid.setText(row, column, cells[column]);
}

// Holidays red, half holidays blue.
std::optional<GridColour> dateColour(const QString& type) {
    if (type == u"0" || type == u"3") return GridColour{255, 0, 0};
    if (type == u"1" || type == u"2") return GridColour{0, 0, 255};
    return {};
}

} // namespace

void fillCardGrid(GridModel& grid, const Card& card) {
    grid.reset(firstDay + static_cast<int>(card.days.size()), cardColumns, firstDay);
    writeRow(grid, 0, card.headings);
    for (int i = 0; i < 3; ++i) writeRow(grid, i + 1, card.summary[static_cast<std::size_t>(i)]);
    for (int i = 0; i < card.days.size(); ++i) {
        const QStringList& cells = card.days[i];
        writeRow(grid, firstDay + i, cells);
        grid.setColour(firstDay + i, static_cast<int>(CardColumn::Date),
                       dateColour(cells[static_cast<int>(CardColumn::Holiday)]));
    }
    grid.setComboList(static_cast<int>(CardColumn::Holiday), QStringLiteral("|#0;全日|#1;午前|#2;午後|#3;法定休日"));
    for (int column = 0; column < cardColumns; ++column)
        grid.setColumnHidden(column, card.hidden[static_cast<std::size_t>(column)]);
}

} // namespace kurbo
