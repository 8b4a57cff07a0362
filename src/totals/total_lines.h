#pragma once

#include "totals/totals.h"

#include <QList>
#include <QStringList>

namespace kurbo {

enum class LineKind { Month, SubTotal, Total };

struct TotalLine {
    LineKind kind = LineKind::Month;
    QString group;                 // the name, or the month, under which it stands
    QStringList cells;             // 27
    const TotalRow* row = nullptr; // of a month
};

// What stands behind the group in the caption of its sub-total.
[[nodiscard]] QString subTotalMark();

// The headings parted by "|", each behind the sign of its alignment; the first column has none.
[[nodiscard]] QString totalHeadings(bool byStaff);

// The months in their order, a sub-total of each person or month by whom they stand, and the total; nothing without
// months. A name that several of these people have stands with the code behind it, "name (code)". The rows belong to
// `totals`.
[[nodiscard]] std::vector<TotalLine> totalLines(const Totals& totals);

// "2026年 04月"
[[nodiscard]] QString yearMonthText(std::chrono::year_month month);

} // namespace kurbo
