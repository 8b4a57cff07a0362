#include "month/saved_figures.h"

#include "base/numbers.h"
#include "engine/hours.h"
#include "month/figure_texts.h"
#include "store/engine_fault.h"

namespace kurbo {
namespace {

Value figureOf(const QuantityFacts& facts, const QString& cell, int unit) {
    if (cell.isEmpty()) return {};
    if (facts.unit() == Unit::Time) return ParseHours(cell, unit).count();
    const auto number = numberOf(cell);
    if (!number) throw storeFault(StoreError::BadValue);
    if (facts.unit() == Unit::Number) return wholeOf<std::int16_t>(*number);
    return static_cast<double>(singleOf(*number));
}

} // namespace

const Value& FigureEntry::stored() const {
    if (fault) throw Fault(*fault);
    return value;
}

FigureEntry readFigure(const QuantityFacts& facts, const QString& cell, int unit) {
    FigureEntry entry;
    entry.readable = cell.isEmpty() || isSum(sumForm(facts, unit), cell);
    try {
        entry.value = figureOf(facts, cell, unit);
    } catch (const Fault& fault) {
        entry.fault = fault;
    }
    return entry;
}

bool hasLaterMonth(Connection& connection, const QString& staff, const QString& yearMonth) {
    return connection.hasRow(QStringLiteral("SELECT F_Staff FROM T05_Approved WHERE (F_Staff = ?) "
                                            "AND (F_Year & F_Month > ?) AND (F_PaidTotal Is Not Null);"),
                             {staff, yearMonth});
}

double leaveTaken(const RecordSet& month) {
    const Value paid = month.value(QStringLiteral("F_Paid"));
    return paid.isNull() || month.value(QStringLiteral("F_PaidTotal")).isNull() ? 0 : paid.real();
}

void followBalance(Connection& connection, const QString& staff, const QString& yearMonth, const Value& paidTotal,
                   double taken) {
    if (hasLaterMonth(connection, staff, yearMonth)) return;
    if (!paidTotal.isNull())
        connection.execute(QStringLiteral("UPDATE M02_StaffInfo SET F_PaidTotal = ? WHERE (F_StaffCode = ?)"),
                           {paidTotal, staff});
    else if (taken != 0)
        connection.execute(
            QStringLiteral("UPDATE M02_StaffInfo SET F_PaidTotal = F_PaidTotal + ? WHERE (F_StaffCode = ?)"),
            {taken, staff});
}

} // namespace kurbo
