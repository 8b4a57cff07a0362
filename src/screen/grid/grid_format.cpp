#include "screen/grid/grid_format.h"

#include "base/day.h"

namespace kurbo {
namespace {

QString money(const QString& text) {
    bool number = false;
    const qlonglong amount = qRound64(text.toDouble(&number));
    if (!number) return text;
    if (amount == 0) return {};
    QString digits = QString::number(qAbs(amount));
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3) digits.insert(at, u',');
    return (amount < 0 ? QStringLiteral("-¥") : QStringLiteral("¥")) + digits;
}

// "yyyy/mm/dd" and the weekday in brackets.
QString dayWithName(Day day) {
    return slashDate(day) + shortDate(day).mid(8);
}

} // namespace

QString formatted(const QString& text, const QString& format) {
    if (text.isEmpty() || format.isEmpty()) return text;
    if (format == u"$#,###") return money(text);
    const auto moment = parseSlashMoment(text);
    if (!moment) return text;
    if (format == u"hh:nn") return hourMinute(*moment);
    if (format == u"yyyy/mm/dd(aaa)") return dayWithName(dayOf(*moment));
    return text;
}

} // namespace kurbo
