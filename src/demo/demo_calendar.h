#pragma once

#include "base/day.h"
#include "store/connection.h"

#include <vector>

namespace kurbo {

// What the company calendar says of a day.
enum class DayOff : char { None = 0, Whole = '0', Afternoon = '2', Legal = '3' };

struct CalendarDay {
    Day day;
    QString dateId;
    QString name; // empty on ordinary days
    DayOff off = DayOff::None;
    bool yearEnd = false; // the company is closed
};

// The days of the company's cards.
struct CardSpan {
    Day first;
    Day until; // today: no one has punched yet
};

// All days of the years `first` to `last`, one after the other.
[[nodiscard]] std::vector<CalendarDay> demoCalendar(int first, int last);
void writeCalendar(Connection& connection, const std::vector<CalendarDay>& calendar);

} // namespace kurbo
