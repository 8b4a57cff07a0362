#pragma once

#include "base/day.h"
#include "store/file/bulk_change.h"

namespace kurbo {

// The statements of the data move. Both ends of a range are included; `keepRange` deletes what lies outside instead.

// The tables in which they change most of the rows.
[[nodiscard]] QStringList movedTables();

// Calendar days with their card rows and outings.
void DeleteCalendarRange(BulkChange& change, Day start, Day end, bool keepRange);
// Saved months, from the month of `start` to that of `end`.
void DeleteApprovedRange(BulkChange& change, Day start, Day end, bool keepRange);
// Card rows count from 1 again, and their outings with them; gaps stay.
void RenumberKurbo(BulkChange& change);

} // namespace kurbo
