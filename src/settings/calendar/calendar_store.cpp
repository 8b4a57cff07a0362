#include "settings/calendar/calendar_store.h"

#include <QSet>

namespace kurbo {
namespace {

// A day that has gone meanwhile is passed over.
void updateDay(Connection& connection, const CalendarSheet& sheet, int row) {
    connection.execute(QStringLiteral("UPDATE T01_Calendar SET F_Holiday = ?, F_Type = ? WHERE (F_DateID = ?);"),
                       {Value::textOrNull(sheet.text(row, CalendarColumn::Name)),
                        Value::textOrNull(sheet.text(row, CalendarColumn::Kind)), sheet.text(row, CalendarColumn::Id)});
}

QList<CalendarRow> readYear(Connection& connection, int year) {
    enum Field { Date, Holiday, Type, DateId };
    QList<CalendarRow> days;
    Rows rows = connection.rows(QStringLiteral("SELECT F_Date, F_Holiday, F_Type, F_DateID FROM T01_Calendar "
                                               "WHERE (F_Date BETWEEN ? And ?) ORDER BY F_Date;"),
                                {makeDay(year, 1, 1).value(), makeDay(year, 12, 31).value()});
    while (rows.next())
        days.append({dayOf(rows.moment(Date).value()), rows.text(DateId), rows.text(Holiday), rows.text(Type)});
    return days;
}

QSet<QString> dayIds(Connection& connection, Day first, Day last) {
    QSet<QString> ids;
    Rows rows = connection.rows(QStringLiteral("SELECT F_DateID FROM T01_Calendar WHERE (F_Date BETWEEN ? And ?);"),
                                {first, last});
    while (rows.next()) ids.insert(rows.text(0));
    return ids;
}

} // namespace

// Asked within the transaction: of two clients that begin at the same moment the second finds the days of the first.
void CreateCalendar(Progress& progress, Connection& connection, Day first, Day last) {
    Transaction transaction(connection);
    const QSet<QString> there = dayIds(connection, first, last);
    const auto count = static_cast<int>((last - first).count()) + 1;
    const Shown shown(progress, QStringLiteral("カレンダーを作成しています･･･"), count + 1);
    for (int i = 0; i < count; ++i) {
        const Day day = first + std::chrono::days(i);
        if (!there.contains(dateId(day)))
            connection.execute(QStringLiteral("INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES (?, ?);"),
                               {dateId(day), day});
        progress.step(i + 1);
    }
    transaction.commit();
}

void ShowCalendar(Connection& connection, CalendarSheet& sheet, int year) {
    drawCalendar(sheet, year, readYear(connection, year));
}

void UpdateCalendar(Progress& progress, Connection& connection, const CalendarSheet& sheet) {
    const Shown shown(progress, QStringLiteral("更新しています･･･"), sheet.grid.Rows());
    Transaction transaction(connection);
    for (int row = 1; row < sheet.grid.Rows(); ++row) {
        progress.step(row);
        if (sheet.grid.RowStatus(row) != GridStatus::None) updateDay(connection, sheet, row);
    }
    transaction.commit();
}

} // namespace kurbo
