#include "month/calendar_days.h"

#include "store/readers.h"

namespace kurbo {

std::vector<StoredDay> readCalendar(Connection& connection, Period span) {
    const Day behind = span.to + std::chrono::days(1);
    Rows rows = connection.rows(QStringLiteral("SELECT F_Date, F_Type, F_DateID FROM T01_Calendar "
                                               "WHERE (F_Date BETWEEN ? AND ?) ORDER BY F_Date;"),
                                {span.from, behind});
    std::vector<StoredDay> days;
    days.reserve(static_cast<std::size_t>((behind - span.from).count()) + 1);
    while (rows.next())
        if (const auto moment = rows.moment(0))
            days.push_back({std::string(rows.bytes(2)), dayOf(*moment), codeIn(rows, 1)});
    return days;
}

QChar codeIn(const Rows& rows, int column) {
    const std::string_view text = rows.bytes(column);
    return text.empty() ? QChar() : QChar(QLatin1Char(text.front()));
}

} // namespace kurbo
