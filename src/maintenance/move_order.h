#pragma once

#include "base/guard.h"
#include "store/connection.h"

namespace kurbo {

// What is to be moved and where to, as it stands in the screen's fields; nothing where a field holds no date.
struct MoveOrder {
    std::optional<Day> startDay;
    std::optional<Day> endDay;
    bool withMonths = false;
    // First days of the months; they count where the monthly records move as well.
    std::optional<Day> startMonth;
    std::optional<Day> endMonth;
    QString destination;
};

// The first day of the closing periods that run today, of all people; nothing without people. Throws.
[[nodiscard]] std::optional<Day> firstRunningDay(Connection& connection, Day today);

// What the move of an order takes that people still need, "この期間には…"; empty when it reaches no running period.
// Throws.
[[nodiscard]] QString runningDaysText(Connection& connection, const MoveOrder& order, Day today);

// What the screen offers: a year from the first calendar day, but nothing of a closing period that still runs, and
// twelve months from the first saved one, but nothing that is still to come. A company that is younger than its first
// closing is offered the days until today. Nothing after a failure, which is reported.
[[nodiscard]] std::optional<MoveOrder> firstMoveOrder(const Context& context, Connection& connection);

// Whether everything is filled in, so that the move can be asked for.
[[nodiscard]] bool isFilledIn(const MoveOrder& order);

// Whether the folder of a destination is there; a name without a folder has none.
[[nodiscard]] bool hasDestFolder(const QString& destination);
[[nodiscard]] QString noDestFolderText();

// Throws the Complaint of the first thing that is wrong. `database` is the file that the days leave. Nothing is
// touched.
void checkMove(const Context& context, const QString& database, const MoveOrder& order);

} // namespace kurbo
