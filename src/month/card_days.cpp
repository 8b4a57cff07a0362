#include "month/card_days.h"

#include "month/day_merger.h"
#include "store/readers.h"

namespace kurbo {
namespace {

void readCard(CardDay& day, const Rows& card) {
    readFacts(day.facts, card, 1);
    day.plan = card.text(6);
    day.kurboId = card.integer(7);
}

} // namespace

CardDays readCardDays(Connection& connection, const QString& staff, Period span) {
    const Reading reading(connection);
    const std::vector<StoredDay> calendar = readCalendar(connection, span);
    DayMerger<CardDay> merger(calendar, span);
    Rows cards = connection.rows(
        QStringLiteral("SELECT F_DateID, F_Enter, F_Leave, F_Paid, F_Special, F_Compens, F_Plan, F_KurboID "
                       "FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID BETWEEN ? AND ?) ORDER BY F_DateID;"),
        {staff, dateId(span.from), dateId(span.to)});
    CalendarWalk walk(calendar);
    while (cards.next())
        if (const StoredDay* const day = walk.to(cards.bytes(0))) readCard(merger.rowOn(*day), cards);
    return {std::move(merger.finish()), merger.next()};
}

} // namespace kurbo
