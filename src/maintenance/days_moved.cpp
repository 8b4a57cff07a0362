#include "maintenance/days_moved.h"

namespace kurbo {
namespace {

// `statement` with its "%1" as the word of the range.
QString ranged(const QString& statement, bool keepRange) {
    return statement.arg(keepRange ? QStringLiteral("NOT BETWEEN") : QStringLiteral("BETWEEN"));
}

} // namespace

QStringList movedTables() {
    return {QStringLiteral("T02_Kurbo"), QStringLiteral("T03_GoOut")};
}

void DeleteCalendarRange(BulkChange& change, Day start, Day end, bool keepRange) {
    const Values range{dateId(start), dateId(end)};
    for (const QString& statement :
         {QStringLiteral("DELETE * FROM T03_GoOut WHERE EXISTS (SELECT F_DateID FROM T02_Kurbo "
                         "WHERE (T02_Kurbo.F_KurboID = T03_GoOut.F_KurboID) AND (F_DateID %1 ? AND ?));"),
          QStringLiteral("DELETE * FROM T02_Kurbo WHERE (F_DateID %1 ? AND ?);"),
          QStringLiteral("DELETE * FROM T01_Calendar WHERE (F_DateID %1 ? AND ?);")})
        change.connection().execute(ranged(statement, keepRange), range);
}

void DeleteApprovedRange(BulkChange& change, Day start, Day end, bool keepRange) {
    constexpr int monthLength = 6;
    change.connection().execute(
        ranged(QStringLiteral("DELETE * FROM T05_Approved WHERE (F_Year & F_Month %1 ? AND ?);"), keepRange),
        {dateId(start).left(monthLength), dateId(end).left(monthLength)});
}

// "UPDATE T02_Kurbo SET F_KurboID = F_KurboID - offset;" moves each row within the table, which takes half as long
// again as filling it anew.
void RenumberKurbo(BulkChange& change) {
    Connection& connection = change.connection();
    const auto first = connection.firstValue(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;"));
    const std::int64_t offset = first ? first->integer() - 1 : 0;
    if (offset == 0) return;
    connection.engine("CREATE TEMP TABLE Stay AS SELECT * FROM T02_Kurbo; DELETE FROM T02_Kurbo;");
    connection.execute(QStringLiteral("INSERT INTO T02_Kurbo SELECT F_KurboID - ?, F_DateID, F_User, F_Plan, F_Enter, "
                                      "F_Leave, F_Paid, F_Special, F_Compens FROM Stay;"),
                       {offset});
    connection.engine("DROP TABLE temp.Stay");
    connection.execute(QStringLiteral("UPDATE T03_GoOut SET F_KurboID = F_KurboID - ?;"), {offset});
}

} // namespace kurbo
