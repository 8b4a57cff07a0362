#pragma once

#include "base/day.h"

namespace kurbo {

// Readers of the times in a card's day rows. Each gives nothing for a text of another form.

// The day of a row by its date cell "yy/mm/dd(aaa)"; the years 00 to 79 are 20yy, the others 19yy.
[[nodiscard]] std::optional<Day> dayOfRow(const QString& date);
// The moment of a time of that day, "h:mm", "hh:mm" or "hh:mm:ss".
[[nodiscard]] std::optional<Moment> timeOn(Day day, const QString& time);
// An enter "hh:mm" of the row's day.
[[nodiscard]] std::optional<Moment> enterTime(Day day, const QString& enter);
// A leave "hh:mm" of the row's day, or "(mm/dd)hh:mm" in the row's year; a date before the row's own lies a year later.
[[nodiscard]] std::optional<Moment> leaveTime(Day day, const QString& leave);

} // namespace kurbo
