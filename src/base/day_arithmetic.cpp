#include "base/day_arithmetic.h"

namespace kurbo {
namespace {

// The difference of the calendar years, less one while the last of them is not complete.
int wholeYears(Day from, Day to) {
    const int years = yearOf(to) - yearOf(from);
    return addMonths(from, years * 12) > to ? years - 1 : years;
}

int wholeMonths(Day from, Day to) {
    const auto months = static_cast<int>((monthOf(to) - monthOf(from)).count());
    return addMonths(from, months) > to ? months - 1 : months;
}

} // namespace

std::optional<Day> NthWeekday(Day dateInMonth, int nth, int weekday) {
    const Day firstDay{monthOf(dateInMonth) / 1};
    const int first = static_cast<int>(std::chrono::weekday{firstDay}.c_encoding() + 1);
    const int week = weekday < first ? nth : nth - 1;
    const int day = week * 7 + weekday - first + 1;
    const std::chrono::year_month_day found = monthOf(dateInMonth) / day;
    return day > 0 && found.ok() ? std::optional(Day{found}) : std::nullopt;
}

QString YearsAndMonths(Day from, std::optional<Day> to, Day today) {
    const Day end = to.value_or(today);
    const int years = end < from ? 0 : wholeYears(from, end);
    const int months = end < from ? 0 : wholeMonths(addMonths(from, years * 12), end);
    return QStringLiteral("%1%2").arg(years, 4, 10, QChar(u'0')).arg(months, 2, 10, QChar(u'0'));
}

} // namespace kurbo
