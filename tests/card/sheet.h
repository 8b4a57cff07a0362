#pragma once

#include "card/card_grid.h"
#include "card/card_sheet.h"
#include "support/desk.h"

namespace kurbo::test {

// A card of texts alone, empty but for its dates from `first` on.
inline Card emptyCard(Day first, int days) {
    Card card;
    card.headings = QStringList(cardColumns, QString());
    card.headings[7] = u"普通残業"_q;
    card.headings[18] = u"欠勤"_q;
    card.summary.fill(QStringList(cardColumns, QString()));
    for (int i = 0; i < days; ++i) {
        CardDay day;
        day.facts.date = first + std::chrono::days(i);
        card.days.append(QStringList(cardColumns, QString()));
        card.days.last()[1] = shortDate(day.facts.date);
        card.entries.emplace_back(day);
    }
    return card;
}

inline void drawDays(CardSheet& sheet, Day first, int days) {
    sheet.show(emptyCard(first, days));
}

// Types into a cell of a day, which counts from 0, as the cell editor does.
inline void type(CardSheet& sheet, int day, CardColumn column, const QString& text) {
    const int row = firstCardDay + day;
    sheet.grid.TextMatrix(row, static_cast<int>(column), text);
    sheet.grid.RowStatus(row, GridStatus::Modified);
    sheet.dayAt(row)->read(column, text);
}

} // namespace kurbo::test
