#pragma once

#include "card/card_grid.h"
#include "card/card_sheet.h"
#include "support/desk.h"

namespace kurbo::test {

// Draws empty days from `first` on.
inline void drawDays(CardSheet& sheet, Day first, int days) {
    Card card;
    card.headings = QStringList(cardColumns, QString());
    card.headings[7] = u"普通残業"_q;
    card.headings[18] = u"欠勤"_q;
    card.summary.fill(QStringList(cardColumns, QString()));
    for (int i = 0; i < days; ++i) {
        card.days.append(QStringList(cardColumns, QString()));
        card.days.last()[1] = shortDate(first + std::chrono::days(i));
    }
    fillCardGrid(sheet.grid, card);
    sheet.drawn();
}

// Types into a cell of a day, which counts from 0, as the cell editor does.
inline void type(CardSheet& sheet, int day, CardColumn column, const QString& text) {
    const int row = firstCardDay + day;
    sheet.grid.TextMatrix(row, static_cast<int>(column), text);
    sheet.grid.RowStatus(row, GridStatus::Modified);
    if (column == CardColumn::Enter) sheet.enterEdited.insert(row);
    if (column == CardColumn::Leave) sheet.leaveEdited.insert(row);
}

} // namespace kurbo::test
