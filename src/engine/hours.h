#pragma once

#include "base/day.h"

#include <QString>

#include <optional>

namespace kurbo {

// Minutes as text. `unit` 0 is decimal hours with one or two places (170.5), any other hours and minutes (170:30).
// `signedText` puts "+" or "-" before it. Without it a time between 0 and -1 hour loses its sign in h:mm.
[[nodiscard]] QString FormatHours(Minutes minutes, int unit, bool signedText);

// The minutes of such a text; 0 for any other. Decimal hours are taken in single precision and rounded to the nearest
// minute, halves to the even one. A time past 32 bits throws the fault of an overflow.
[[nodiscard]] Minutes ParseHours(const QString& text, int unit);

// `value` as a multiple of `unit` minutes: direction 0 the largest not above it, 1 the smallest not below it; 0 for any
// other direction and for a unit of 0.
[[nodiscard]] Minutes RoundMinutes(Minutes value, int direction, Minutes unit);

// First day of the card period of the month of `date` that has begun by `today`, as "yyyy/mm/dd"; empty for a close day
// other than 1 to 27 and 31.
[[nodiscard]] QString PeriodStartDate(Day date, int closeDay, Day today);

// First and last day.
struct Period {
    Day from;
    Day to;
    friend bool operator==(const Period&, const Period&) = default;
};

// The card period whose last day lies in the month; nothing for a bad close day and for a month that isn't one.
[[nodiscard]] std::optional<Period> periodOfMonth(std::chrono::year_month month, int closeDay);

} // namespace kurbo
