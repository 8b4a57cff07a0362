#pragma once

#include "base/guard.h"
#include "card/card_sheet.h"
#include "engine/hours.h"
#include "engine/work_time.h"
#include "store/connection.h"

namespace kurbo {

// The month's record. Each gives false after a failure, which is reported and leaves everything as it was.

// Refills the final sums from the days' sums; a sum above the limit that is set for `staff` becomes the limit, and the
// rest of it is dropped. `rules` are those of the person. The grid is written by the program, not as an edit, and the
// month then counts as changed.
[[nodiscard]] bool AdjustMonthly(const Context& context, Connection& connection, CardSheet& sheet,
                                 const clsWorkTime& rules, const QString& staff);

// Whose month: the person, the section the person was chosen in, and the period; its month is that of its last day.
struct MonthOwner {
    QString staff;
    QString section;
    Period period;
};

// Saves the final sums, already checked, as the month's record and takes both approvals away; an empty cell is stored
// as Null. The person's balance of paid leave follows unless its cell is empty or a later month has been saved. A
// figure too large for its field is a fault.
[[nodiscard]] bool UpdateMonthly(const Context& context, Connection& connection, const CardSheet& sheet,
                                 const clsWorkTime& rules, const MonthOwner& owner);

// Give or take back one approval of the record of the month in which `end` lies. Where no record is saved nothing is
// written, and that is no failure.
[[nodiscard]] bool UpdatePersonal(const Context& context, Connection& connection, const QString& staff, Day end,
                                  bool approved);
[[nodiscard]] bool UpdateSuperior(const Context& context, Connection& connection, const QString& staff, Day end,
                                  bool approved);

} // namespace kurbo
