#pragma once

#include "base/day.h"

#include <QList>

namespace kurbo {

// From the year in which the law took its present form to the last for which the equinoxes are known well enough.
inline constexpr int firstHolidayYear = 2022;
inline constexpr int lastHolidayYear = 2099;

struct PublicHoliday {
    Day day;
    QString name;
    // It is always this Monday of its month; 0 for a holiday of a date.
    int monday = 0;
    friend bool operator==(const PublicHoliday&, const PublicHoliday&) = default;
};

// The days off of a year under the Act on National Holidays (国民の祝日に関する法律) as it stands since 2022, in the
// order of days. The equinoxes follow the usual approximation, which holds for 1980 to 2099; the official ones are
// announced a year ahead.
[[nodiscard]] QList<PublicHoliday> publicHolidays(int year);

// The same as a file "Holiday.txt". Those that move by a rule of the file stand under it; the equinoxes and the days
// off that follow from other holidays are right for this year only.
[[nodiscard]] QByteArray holidayFileOf(int year);

} // namespace kurbo
