#include "demo/demo_calendar.h"

#include "base/public_holidays.h"

using namespace std::chrono;

namespace kurbo {
namespace {

// Closed from 12/29 to 01/03; the last afternoon before that is for cleaning up, and free.
void markYearEnd(CalendarDay& day) {
    const auto date = civil(day.day);
    const bool closing = date.month() == December && date.day() >= std::chrono::day{29};
    const bool opening = date.month() == January && date.day() <= std::chrono::day{3};
    day.yearEnd = closing || opening;
    if (day.yearEnd) day.name = QStringLiteral("年末年始");
    if (day.yearEnd && day.off == DayOff::None) day.off = DayOff::Whole;
    if (date.month() == December && date.day() == std::chrono::day{28} && day.off == DayOff::None) {
        day.name = QStringLiteral("仕事納め");
        day.off = DayOff::Afternoon;
    }
}

CalendarDay companyDay(Day day) {
    CalendarDay result{day, dateId(day), {}};
    const weekday name{day};
    if (name == Saturday) result.off = DayOff::Whole;
    if (name == Sunday) result.off = DayOff::Legal;
    markYearEnd(result);
    return result;
}

} // namespace

std::vector<CalendarDay> demoCalendar(int first, int last) {
    const Day start = *makeDay(first, 1, 1);
    const Day end = *makeDay(last, 12, 31);
    std::vector<CalendarDay> calendar;
    for (Day day = start; day <= end; day += days{1}) calendar.push_back(companyDay(day));
    for (int year = first; year <= last; ++year) {
        for (const PublicHoliday& holiday : publicHolidays(year)) {
            CalendarDay& day = calendar[static_cast<std::size_t>((holiday.day - start).count())];
            day.name = holiday.name;
            if (day.off != DayOff::Legal) day.off = DayOff::Whole;
        }
    }
    return calendar;
}

void writeCalendar(Connection& connection, const std::vector<CalendarDay>& calendar) {
    for (const CalendarDay& day : calendar) {
        const Value type = day.off == DayOff::None ? Value() : Value(QString(QLatin1Char(static_cast<char>(day.off))));
        connection.execute(
            QStringLiteral("INSERT INTO T01_Calendar (F_DateID, F_Date, F_Holiday, F_Type) VALUES (?, ?, ?, ?)"),
            {day.dateId, day.day, Value::textOrNull(day.name), type});
    }
}

} // namespace kurbo
