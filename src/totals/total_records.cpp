#include "totals/total_records.h"

#include <cstdlib>

namespace kurbo {
namespace {

// "yyyymm"
QString monthId(std::chrono::year_month month) {
    return QString::number(static_cast<int>(month.year()) * 100 +
                           static_cast<int>(static_cast<unsigned>(month.month())));
}

TotalRow savedMonth(const Rows& rows, bool byStaff) {
    constexpr int behind = quantityCount;
    TotalRow row;
    row.figures = readMonthFigures(rows);
    row.personalApproval = rows.yes(behind);
    row.superiorApproval = rows.yes(behind + 1);
    row.term = rows.text(behind + 2);
    row.section = rows.text(behind + 3);
    row.month = std::chrono::year(rows.text(behind + 4).toInt()) /
                std::chrono::month(static_cast<unsigned>(rows.text(behind + 5).toInt()));
    row.staff = rows.text(behind + 6);
    row.name = rows.text(behind + 7);
    row.key = totalKey(orderText(rows, behind + 8), row.month, byStaff);
    row.saved = true;
    return row;
}

} // namespace

std::vector<TotalRow> readSavedMonths(Connection& connection, const TotalsQuestion& question, bool byStaff) {
    // The years alone go through the index.
    const QString statement =
        QStringLiteral("SELECT ") + quantityFields() +
        QStringLiteral(", F_PersonalApproval, F_SuperiorApproval, F_Term, T05_Approved.F_Section, F_Year, F_Month, "
                       "C03_Staff.F_StaffCode, C03_Staff.F_StaffName, C03_Staff.F_Order "
                       "FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
                       "WHERE (T05_Approved.F_Year BETWEEN ? AND ?) "
                       "AND (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN ? AND ?) AND ");
    const QString filter = question.staff.isEmpty()
                               ? QStringLiteral("(T05_Approved.F_Section = ?) AND (C03_Staff.F_Display = True);")
                               : QStringLiteral("(T05_Approved.F_Staff = ?);");
    Rows rows = connection.rows(statement + filter,
                                {QString::number(static_cast<int>(question.from.year())),
                                 QString::number(static_cast<int>(question.to.year())), monthId(question.from),
                                 monthId(question.to), question.staff.isEmpty() ? question.section : question.staff});
    std::vector<TotalRow> months;
    while (rows.next()) months.push_back(savedMonth(rows, byStaff));
    return months;
}

QString orderText(const Rows& rows, int column) {
    if (rows.isNull(column)) return {};
    const std::int64_t order = rows.integer(column);
    const QString digits = QString::number(std::abs(order)).rightJustified(4, u'0');
    return order < 0 ? u'-' + digits : digits;
}

QString totalKey(const QString& order, std::chrono::year_month month, bool byStaff) {
    return byStaff ? order + monthId(month) : monthId(month) + order;
}

QStringView orderIn(const QString& key) {
    constexpr int monthDigits = 6;
    return QStringView(key).chopped(monthDigits);
}

} // namespace kurbo
