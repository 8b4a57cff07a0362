#pragma once

#include "base/guard.h"
#include "card/card_sheet.h"
#include "store/connection.h"

namespace kurbo {

// Writing a card. Each is all or nothing; false after a reported failure.

// Writes the day rows that the person has changed, already checked, to the card of `staff`. A row without an ID is
// added under a fresh key; a key that another client has taken is tried again, four times in all. A punch whose cell
// wasn't edited keeps its stored seconds. A row that another client has deleted, or that isn't the person's, is a
// fault.
[[nodiscard]] bool UpdateDayly(const Context& context, Connection& connection, const CardSheet& sheet,
                               const QString& staff);
// Deletes the person's rows from `start` to `end`, both included, and with them their outings.
[[nodiscard]] bool DeleteKurbo(const Context& context, Connection& connection, const QString& staff, Day start,
                               Day end);

} // namespace kurbo
