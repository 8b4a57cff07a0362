#pragma once

#include "month/quantities.h"
#include "store/connection.h"

namespace kurbo {

// What is stored of a cell's text; Null for an empty one. `unit` 0 is decimal hours, any other h:mm. Throws the fault
// of a text that is no such figure, or too large for its field.
[[nodiscard]] Value figureOf(const QuantityFacts& facts, const QString& cell, int unit);

// Whether a month after "yyyymm" has been saved for the person. Throws a Fault.
[[nodiscard]] bool hasLaterMonth(Connection& connection, const QString& staff, const QString& yearMonth);
// The person's balance of paid leave follows a month's record, "yyyymm", unless a later one has been saved. A record
// without a balance, Null, leaves it as it is: nobody can be calculated without one. Throws a Fault.
void followBalance(Connection& connection, const QString& staff, const QString& yearMonth, const Value& paidTotal);

} // namespace kurbo
