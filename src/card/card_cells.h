#pragma once

#include "base/guard.h"
#include "engine/hours.h"
#include "month/card_days.h"
#include "month/quantities.h"
#include "store/connection.h"

#include <QStringList>

#include <array>
#include <optional>

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

// A card as texts, ready for a grid, a file or the command line: every row has a cell for each column.
struct Card {
    QStringList headings;
    std::array<QStringList, 3> summary; // captions, what the days add up to, what counts for the month
    QList<QStringList> days;
    std::array<bool, cardColumns> hidden{};
    Figures sum; // rounded where the company rounds by the month
    // Set when the span is a whole card period that has ended; a saved month then gives the last summary row.
    bool wholePeriod = false;
    bool saved = false;
    bool personalApproval = false;
    bool superiorApproval = false;
};

// The calculated card of one person; `rules` are loaded for that person. Nothing after a failure, which is reported
// under "ShowKurbo".
[[nodiscard]] std::optional<Card> makeCard(const Context& context, Connection& connection, clsWorkTime& rules,
                                           const QString& staff, Period span);

} // namespace kurbo
