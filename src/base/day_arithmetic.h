#pragma once

#include "base/day.h"

namespace kurbo {

// The `nth` weekday, 1 Sunday to 7 Saturday, in the month of the day; nothing when the month has none.
[[nodiscard]] std::optional<Day> NthWeekday(Day dateInMonth, int nth, int weekday);

// Whole years as four digits and the whole months beyond them as two, from one day to another or to today; "000000"
// when `to` lies before `from`.
[[nodiscard]] QString YearsAndMonths(Day from, std::optional<Day> to, Day today);

} // namespace kurbo
