#pragma once

#include "support/desk.h"
#include "totals/csv/csv_record.h"

namespace kurbo::test {

// A month ("yyyymm") whose figures all differ, 18.5 days of paid leave being left; approved by the superior alone.
inline MonthRecord savedMonth(const QString& staff, const QString& month, double paidLeft = 18.5) {
    MonthRecord record{staff, u"S01"_q, month.left(4), month.mid(4), {}, false, true, {}};
    for (std::size_t i = 0; i < record.figures.size(); ++i) {
        const auto number = static_cast<double>(i + 1);
        const bool days = quantities[i].unit() == Unit::Days;
        record.figures[i] = days ? Value(number / 2) : Value(static_cast<int>(i) + 1);
    }
    record.figures[2] = paidLeft;
    record.term = u"%1/%2/01-%1/%2/28"_q.arg(record.year, record.month);
    return record;
}

// The line of savedMonth("1001", "202603").
const QByteArray marchLine = R"("1001","S01","2026","03","1","2",18.5,"4","5","6","7","8","9","10","11","12",)"
                             R"("6.5","7","7.5","16","17","18","False","True","2026/03/01-2026/03/28")";

} // namespace kurbo::test
