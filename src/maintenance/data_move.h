#pragma once

#include "maintenance/move_order.h"
#include "store/file/optimize_db.h"

namespace kurbo {

// Moves the days, and in month mode the saved months, of an order that checkMove() has passed. `shared` is this
// process's own connection to the database; it is closed meanwhile and open again at every way out if it was open.
//
// The database is this client's alone from its compaction to the end, and others wait. The destination is written
// beside its place, checked and put there in one step before the database is touched; then the days leave the database
// and its card rows are renumbered in one transaction. So a failure at any time leaves every day in one of both files.
//
// Gives OK, or another result of the compaction where that alone stops the move and there is no message (an Error has
// been reported). Throws a Complaint or a Fault otherwise.
[[nodiscard]] OptimizeResult carryOut(const Context& context, Connection& shared, const QString& database,
                                      const MoveOrder& order);

// The whole command: the checks, the question, the move and the notice at its end. True when the days have moved; every
// failure has been told.
[[nodiscard]] bool moveData(const Context& context, Connection& shared, const QString& database,
                            const MoveOrder& order);

} // namespace kurbo
