#pragma once

#include "base/units.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kurbo {

// A calendar day and a moment of the office's wall clock, to the second; neither knows a time zone.
using Day = std::chrono::local_days;
using Moment = std::chrono::local_seconds;

// Gives nothing for a day that the calendar lacks (2026/02/29) and for years outside 100 to 9999.
[[nodiscard]] std::optional<Day> makeDay(int year, int month, int day);
// Hours 0 to 23.
[[nodiscard]] Moment at(Day day, int hour, int minute, int second = 0);
[[nodiscard]] inline Day dayOf(Moment moment) {
    return std::chrono::floor<std::chrono::days>(moment);
}
[[nodiscard]] inline std::chrono::year_month_day civil(Day day) {
    return std::chrono::year_month_day{day};
}
[[nodiscard]] inline std::chrono::year_month monthOf(Day day) {
    return civil(day).year() / civil(day).month();
}
[[nodiscard]] int yearOf(Day day);
[[nodiscard]] int dayOfMonth(Day day);
// The same day `months` later; a day past the end of its month becomes the month's last (01/31 + 1 = 02/28).
[[nodiscard]] Day addMonths(Day day, int months);

// "yyyymmdd", "yyyy/mm/dd", "hh:nn", "yyyy/mm/dd hh:nn:ss" and the stored form "yyyy-mm-dd hh:nn:ss".
[[nodiscard]] QString dateId(Day day);
[[nodiscard]] QString slashDate(Day day);
// "yyyy/mm"
[[nodiscard]] QString slashMonth(std::chrono::year_month month);
[[nodiscard]] QString hourMinute(Moment moment);
// "yy/mm/dd(aaa)", aaa being the weekday's one letter.
[[nodiscard]] QString shortDate(Day day);
[[nodiscard]] QString slashMoment(Moment moment);
[[nodiscard]] std::string isoText(Moment moment);
// "yyyy年mm月dd日(aaa)  h:mm:ss", aaa being the weekday's one letter.
[[nodiscard]] QString clockText(Moment moment);

// Readers of the texts above; they give nothing for any other text.
[[nodiscard]] std::optional<Day> parseDateId(QStringView text);
// "yyyy/mm/dd", also with one-digit month and day.
[[nodiscard]] std::optional<Day> parseSlashDate(QStringView text);
// "yyyy/mm", also with a one-digit month.
[[nodiscard]] std::optional<std::chrono::year_month> parseSlashMonth(QStringView text);
// "yyyy/mm/dd", optionally followed by a blank and "hh:nn" or "hh:nn:ss".
[[nodiscard]] std::optional<Moment> parseSlashMoment(QStringView text);
// "hh:nn" or "hh:nn:ss" from midnight, also with one-digit parts; hours 0 to 23.
[[nodiscard]] std::optional<std::chrono::seconds> parseClock(QStringView text);
// "yyyy-mm-dd hh:nn:ss", the hot path of every read.
[[nodiscard]] std::optional<Moment> parseIso(std::string_view text);

} // namespace kurbo
