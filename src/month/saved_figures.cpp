#include "month/saved_figures.h"

#include "base/numbers.h"
#include "engine/hours.h"
#include "store/engine_fault.h"

namespace kurbo {

Value figureOf(const QuantityFacts& facts, const QString& cell, int unit) {
    if (cell.isEmpty()) return {};
    if (facts.unit == Unit::Time) return ParseHours(cell, unit);
    const auto number = numberOf(cell);
    if (!number) throw storeFault(StoreError::BadValue);
    if (facts.unit == Unit::Count) return wholeOf<std::int16_t>(*number);
    return static_cast<double>(singleOf(*number));
}

bool hasLaterMonth(Connection& connection, const QString& staff, const QString& yearMonth) {
    return connection.hasRow(
        QStringLiteral("SELECT F_Staff FROM T05_Approved WHERE (F_Staff = ?) AND (F_Year & F_Month > ?);"),
        {staff, yearMonth});
}

void followBalance(Connection& connection, const QString& staff, const QString& yearMonth, const Value& paidTotal) {
    if (paidTotal.isNull() || hasLaterMonth(connection, staff, yearMonth)) return;
    connection.execute(QStringLiteral("UPDATE M02_StaffInfo SET F_PaidTotal = ? WHERE (F_StaffCode = ?)"),
                       {paidTotal, staff});
}

} // namespace kurbo
