#pragma once

#include "month/quantities.h"

namespace kurbo {

// Columns of the card. On the summary rows the sums of the month begin in the column of the plan, one behind the other;
// the quantities of a day stand in the columns of their sums.
enum class CardColumn {
    No,
    Date,
    Holiday,
    Plan,
    Enter,
    Leave,
    LegalOver = columnFrom(Plan, Quantity::LegalOver), // or the difference from the standard time
    Over = columnFrom(Plan, Quantity::Over),
    Late = columnFrom(Plan, Quantity::Late),
    Early = columnFrom(Plan, Quantity::Early),
    HolidayWork = columnFrom(Plan, Quantity::Holiday),
    HolidayLate = columnFrom(Plan, Quantity::HolidayLate),
    LegalHoliday = columnFrom(Plan, Quantity::LegalHoliday),
    LegalLate = columnFrom(Plan, Quantity::LegalLate),
    Absent = columnFrom(Plan, Quantity::Absent),
    Paid = columnFrom(Plan, Quantity::Paid),
    Special = columnFrom(Plan, Quantity::Special),
    Compens = columnFrom(Plan, Quantity::Compens),
    AbsentDay = columnFrom(Plan, Quantity::AbsentDays),
    LateEnter = columnFrom(Plan, Quantity::LateEnters),
    EarlyLeave = columnFrom(Plan, Quantity::EarlyLeaves),
    WorkTime = Plan + static_cast<int>(quantityCount),
    FullEnter,
    FullLeave,
    Id,
};
inline constexpr int cardColumns = static_cast<int>(CardColumn::Id) + 1;

[[nodiscard]] constexpr CardColumn cardColumnOf(Quantity id) {
    return static_cast<CardColumn>(columnFrom(static_cast<int>(CardColumn::Plan), id));
}
static_assert(cardColumnOf(firstOfDay) > CardColumn::Leave, "a day's times and its quantities stand side by side");
// The quantity whose sum stands in the column; none in the other columns.
[[nodiscard]] constexpr const QuantityFacts* quantityAt(CardColumn column) {
    return column >= CardColumn::Plan && column < CardColumn::WorkTime
               ? &quantities[static_cast<std::size_t>(column) - static_cast<std::size_t>(CardColumn::Plan)]
               : nullptr;
}

} // namespace kurbo
