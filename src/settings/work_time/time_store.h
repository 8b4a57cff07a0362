#pragma once

#include "settings/work_time/time_sheet.h"
#include "store/readers.h"

namespace kurbo {

// The records of the work times. All throw.

[[nodiscard]] QList<CodeName> timeNames(Connection& connection, const TimePage& page);
// Shows a record, and clears the changed flag. Complains of one that is gone, which leaves the page as it was.
void showTimes(Connection& connection, TimeSheet& sheet, std::int64_t code);
// Stores the checked page under the name, the reserved record as a new one; rows that hang on a choice the company
// hasn't made become Null. The page then stands for the record, whose code is given.
std::int64_t updateTimes(Connection& connection, TimeSheet& sheet, const QString& name);
[[nodiscard]] bool isUsed(Connection& connection, const TimePage& page, std::int64_t code);
// Complains where a person has come to use it.
void removeTimes(Connection& connection, const TimePage& page, std::int64_t code);

// Complains when a new record would take the name of another one.
void refuseTakenName(Connection& connection, const TimePage& page, const QString& name);

} // namespace kurbo
