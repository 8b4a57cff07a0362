#include "card/card_days.h"

namespace kurbo {
namespace {

QChar code(const Rows& rows, int column) {
    const std::string_view text = rows.bytes(column);
    return text.empty() ? QChar() : QChar(QLatin1Char(text.front()));
}

CardDay joined(Day date, QChar type, const Rows& card) {
    return {{date, type, card.moment(2), card.moment(3), code(card, 4), code(card, 5), code(card, 6)},
            card.text(1),
            card.integer(7)};
}

} // namespace

CardDays readCardDays(Connection& connection, const QString& staff, Day from, Day to) {
    const Day behind = to + std::chrono::days(1);
    const Reading reading(connection);
    Rows calendar = connection.rows(QStringLiteral("SELECT F_Date, F_Type, F_DateID FROM T01_Calendar "
                                                   "WHERE (F_Date BETWEEN ? AND ?) ORDER BY F_Date;"),
                                    {from, behind});
    Rows cards = connection.rows(
        QStringLiteral("SELECT F_DateID, F_Plan, F_Enter, F_Leave, F_Paid, F_Special, F_Compens, F_KurboID "
                       "FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID BETWEEN ? AND ?) ORDER BY F_DateID;"),
        {staff, dateId(from), dateId(to)});
    CardDays result;
    result.days.reserve(static_cast<std::size_t>((behind - from).count()));
    bool more = cards.next();
    while (calendar.next()) {
        const auto moment = calendar.moment(0);
        if (!moment) continue;
        const Day date = dayOf(*moment);
        const QChar type = code(calendar, 1);
        if (date == behind) {
            result.next = type;
            break;
        }
        while (more && cards.bytes(0) < calendar.bytes(2)) more = cards.next();
        if (!more || cards.bytes(0) != calendar.bytes(2))
            result.days.push_back({{date, type, {}, {}, {}, {}, {}}, {}, {}});
        for (; more && cards.bytes(0) == calendar.bytes(2); more = cards.next())
            result.days.push_back(joined(date, type, cards));
    }
    return result;
}

} // namespace kurbo
