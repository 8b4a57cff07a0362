#pragma once

#include "month/quantities.h"
#include "store/connection.h"

namespace kurbo {

// A figure of somebody's month, in the unit of its quantity; nothing where none is known.
using MonthFigure = std::variant<std::monostate, Count, Minutes, DayHundredths>;
// In the places of their quantities.
using FigureList = std::array<MonthFigure, quantityCount>;

// Days to two places; a stored number of days is single precision.
[[nodiscard]] DayHundredths hundredths(double days);

// Of what the days of a month add up to; the leave taken lowers the balance.
[[nodiscard]] FigureList monthFigures(const Figures& sum, DayHundredths balance);
// Of a record whose columns from `first` on are the quantities' fields. Throws a Fault.
[[nodiscard]] FigureList readMonthFigures(const Rows& record, int first = 0);

// How many of its unit; 0 for none.
[[nodiscard]] inline std::int64_t countOf(const MonthFigure& figure) {
    if (const auto* const count = std::get_if<Count>(&figure)) return count->count();
    if (const auto* const minutes = std::get_if<Minutes>(&figure)) return minutes->count();
    const auto* const days = std::get_if<DayHundredths>(&figure);
    return days ? days->count() : 0;
}
[[nodiscard]] inline bool isKnown(const MonthFigure& figure) {
    return figure.index() != 0;
}

} // namespace kurbo
