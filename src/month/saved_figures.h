#pragma once

#include "base/failure.h"
#include "month/month_figures.h"
#include "store/record_set.h"

namespace kurbo {

// A figure as a person has typed it, read once.
struct FigureEntry {
    Value value;
    bool readable = true;       // it has the form that its quantity asks for
    std::optional<Fault> fault; // why it can't be stored

    // Throws that fault.
    [[nodiscard]] const Value& stored() const;
};
// `unit` 0 is decimal hours, any other h:mm; an empty cell is stored as Null. A text that is no such figure, or too
// large for its field, keeps that fault.
[[nodiscard]] FigureEntry readFigure(const QuantityFacts& facts, const QString& cell, int unit);

// Whether a later month than "yyyymm" has been saved for the person with a balance of paid leave. Throws a Fault.
[[nodiscard]] bool hasLaterMonth(Connection& connection, const QString& staff, const QString& yearMonth);
// The days of paid leave by which a month's record, a row of T05_Approved before it is changed, has lowered the
// person's balance: 0 for a new one and one without a balance of its own.
[[nodiscard]] double leaveTaken(const RecordSet& month);
// The person's balance of paid leave follows a month's record, "yyyymm", unless a later one has been saved. A record
// without a balance, Null, takes nothing from it, and gives back what it had taken. Throws a Fault.
void followBalance(Connection& connection, const QString& staff, const QString& yearMonth, const Value& paidTotal,
                   double taken);

} // namespace kurbo
