#include "month/card_days.h"

namespace kurbo {
namespace {

QChar code(const Rows& rows, int column) {
    const std::string_view text = rows.bytes(column);
    return text.empty() ? QChar() : QChar(QLatin1Char(text.front()));
}

void readCard(CardDay& day, const Rows& card) {
    day.plan = card.text(1);
    day.facts.enter = card.moment(2);
    day.facts.leave = card.moment(3);
    day.facts.paid = code(card, 4);
    day.facts.special = code(card, 5);
    day.facts.compens = code(card, 6);
    day.kurboId = card.integer(7);
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
    bool more = false;
    std::string_view cardDay;
    const auto nextCard = [&] {
        more = cards.next();
        if (more) cardDay = cards.bytes(0);
    };
    nextCard();
    // Filled in its place: building each row aside and moving it in shows in the time of a card.
    const auto addDay = [&](Day date, QChar type) -> CardDay& {
        CardDay& day = result.days.emplace_back();
        day.facts.date = date;
        day.facts.type = type;
        return day;
    };
    while (calendar.next()) {
        const auto moment = calendar.moment(0);
        if (!moment) continue;
        const Day date = dayOf(*moment);
        const QChar type = code(calendar, 1);
        if (date == behind) {
            result.next = type;
            break;
        }
        const std::string_view calendarDay = calendar.bytes(2);
        while (more && cardDay < calendarDay) nextCard();
        if (!more || cardDay != calendarDay) addDay(date, type);
        for (; more && cardDay == calendarDay; nextCard()) readCard(addDay(date, type), cards);
    }
    return result;
}

} // namespace kurbo
