#pragma once

#include "base/guard.h"
#include "engine/hours.h"
#include "month/card_days.h"
#include "store/connection.h"

#include <QStringList>

#include <array>
#include <optional>

namespace kurbo {

// Columns of the card.
enum class CardColumn {
    No,
    Date,
    Holiday,
    Plan,
    Enter,
    Leave,
    LegalOver, // or the difference from the standard time
    Over,
    Late,
    Early,
    HolidayWork,
    HolidayLate,
    LegalHoliday,
    LegalLate,
    Absent,
    Paid,
    Special,
    Compens,
    AbsentDay,
    LateEnter,
    EarlyLeave,
    WorkTime,
    FullEnter,
    FullLeave,
    Id,
};
inline constexpr int cardColumns = 25;

// The switches that show columns 6 to 20, in their order.
inline constexpr std::array sumSwitches{
    &clsWorkTime::pbleEnableLegalOver,    &clsWorkTime::pbleEnableOver,      &clsWorkTime::pbleEnableLate,
    &clsWorkTime::pbleEnableEarly,        &clsWorkTime::pbleEnableHoliday,   &clsWorkTime::pbleEnableHolidayLate,
    &clsWorkTime::pbleEnableLegalHoliday, &clsWorkTime::pbleEnableLegalLate, &clsWorkTime::pbleEnableAbsent,
    &clsWorkTime::pbleEnablePaid,         &clsWorkTime::pbleEnableSpecial,   &clsWorkTime::pbleEnableCompens,
    &clsWorkTime::pbleEnableAbsentDay,    &clsWorkTime::pbleEnableLateEnter, &clsWorkTime::pbleEnableEarlyLeave};

// A card as texts, ready for a grid, a file or the command line: every row has 25 cells.
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

// The stored code of a leave's word (全日, 午前, 午後); empty for any other text.
[[nodiscard]] QString leaveCode(const QString& word);

// Days as text with one place, "18.5".
[[nodiscard]] QString daysText(double days);

} // namespace kurbo
