#include "engine/hours.h"

#include "base/numbers.h"

#include <cstdlib>

namespace kurbo {
namespace {

// Hundredths of an hour: m * 100 / 60 never lies half way between two, so adding a third rounds it.
QString decimalHours(std::int64_t minutes) {
    const std::int64_t hundredths = (minutes * 5 + 1) / 3;
    const QString places = QString::number(hundredths % 100).rightJustified(2, u'0');
    return QString::number(hundredths / 100) + u'.' + (places.endsWith(u'0') ? places.left(1) : places);
}

QString sexagesimal(std::int64_t hours, std::int64_t minutes) {
    const QChar places[]{u':', QChar(static_cast<char16_t>(u'0' + minutes / 10)),
                         QChar(static_cast<char16_t>(u'0' + minutes % 10))};
    return QString::number(hours).append(places, 3);
}

std::optional<double> wholeNumber(const QString& text) {
    return text.contains(u'.') ? std::nullopt : numberOf(text);
}

} // namespace

QString FormatHours(Minutes minutes, int unit, bool signedText) {
    const std::int64_t count = minutes.count();
    const std::int64_t size = std::abs(count);
    const QString sign = count < 0 ? QStringLiteral("-") : QStringLiteral("+");
    if (unit == 0) return (signedText || count < 0 ? sign : QString()) + decimalHours(size);
    if (signedText) return sign + sexagesimal(size / 60, size % 60);
    return sexagesimal(count / 60, size % 60);
}

Minutes ParseHours(const QString& text, int unit) {
    if (unit == 0) {
        const auto hours = numberOf(text);
        return Minutes(hours ? wholeOf<Minutes::rep>(static_cast<double>(singleOf(*hours) * 60.0F)) : 0);
    }
    const auto hours = wholeNumber(text.chopped(qMin(text.size(), qsizetype{3})));
    const auto minutes = wholeNumber(text.right(2));
    return Minutes(hours && minutes ? wholeOf<Minutes::rep>(*hours * 60 + *minutes) : 0);
}

Minutes RoundMinutes(Minutes value, int direction, Minutes unit) {
    if (unit == Minutes{} || (direction != 0 && direction != 1)) return {};
    const Minutes over = (value % unit + unit) % unit;
    if (over == Minutes{}) return value;
    return direction == 0 ? value - over : value - over + unit;
}

QString PeriodStartDate(Day date, int closeDay, Day today) {
    const int startDay = closeDay == 31 ? 1 : closeDay + 1;
    if (startDay < 1 || startDay > 28 || closeDay < 1) return {};
    const auto month = civil(date);
    const Day start{month.year() / month.month() / std::chrono::day{static_cast<unsigned>(startDay)}};
    return slashDate(start > today ? addMonths(start, -1) : start);
}

std::optional<Period> periodOfMonth(std::chrono::year_month month, int closeDay) {
    const bool wholeMonth = closeDay == 31;
    if (!month.ok() || !(wholeMonth || (closeDay >= 1 && closeDay <= 27))) return {};
    const Day first{month / 1};
    const Day from = wholeMonth ? first : addMonths(first, -1) + std::chrono::days(closeDay);
    return Period{from, addMonths(from, 1) - std::chrono::days(1)};
}

} // namespace kurbo
