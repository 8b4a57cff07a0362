#include "card/edit/card_times.h"

#include "base/field_tests.h"

namespace kurbo {
namespace {

bool hasColon(const QString& text, qsizetype place) {
    return text.size() >= place && text[place - 1] == u':';
}

std::optional<Moment> leaveOnDate(Day day, const QString& leave) {
    const QString date = slashDate(day).left(5) + leave.mid(1, 5);
    const auto named = parseSlashDate(date);
    const auto moment = named ? timeOn(*named, leave.right(5)) : std::nullopt;
    if (!moment || *named >= day) return moment;
    constexpr int year = 12;
    return addMonths(*named, year) + (*moment - *named);
}

} // namespace

std::optional<Day> dayOfRow(const QString& date) {
    constexpr qsizetype length = 8;
    constexpr int firstOfLastCentury = 80;
    const QString text = date.left(length);
    if (text.size() != length || text[2] != u'/' || text[5] != u'/') return {};
    const bool lastCentury = text.left(2).toInt() >= firstOfLastCentury;
    return parseSlashDate((lastCentury ? QStringLiteral("19") : QStringLiteral("20")) + text);
}

std::optional<Moment> timeOn(Day day, const QString& time) {
    const auto sinceMidnight = parseClock(time);
    return sinceMidnight ? std::optional(Moment{day} + *sinceMidnight) : std::nullopt;
}

std::optional<Moment> enterTime(Day day, const QString& enter) {
    return hasColon(enter, 3) ? timeOn(day, enter) : std::nullopt;
}

std::optional<Moment> leaveTime(Day day, const QString& leave) {
    constexpr qsizetype longForm = 12;
    if (hasColon(leave, 3)) return timeOn(day, leave);
    return leave.size() == longForm && hasColon(leave, 10) && IsSingleByte(leave) ? leaveOnDate(day, leave)
                                                                                  : std::nullopt;
}

} // namespace kurbo
