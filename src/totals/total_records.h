#pragma once

#include "totals/totals.h"

namespace kurbo {

// The saved months of the question, in no order. Throws a Fault.
[[nodiscard]] std::vector<TotalRow> readSavedMonths(Connection& connection, const TotalsQuestion& question,
                                                    bool byStaff);

// A person's place among the others as text of at least four digits; empty for Null.
[[nodiscard]] QString orderText(const Rows& rows, int column);
// What orders the rows: place and "yyyymm", or the month first.
[[nodiscard]] QString totalKey(const QString& order, std::chrono::year_month month, bool byStaff);
// The place in such a text, which begins with it; it is a part of `key`.
[[nodiscard]] QStringView orderIn(const QString& key);

} // namespace kurbo
