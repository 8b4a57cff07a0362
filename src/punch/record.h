#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QString>

namespace kurbo {

// The writing of the four punches. Each is one write, all or nothing; false after a reported failure. A collision of
// two new rows on one F_KurboID is tried again with a fresh id, five times.

// With `newRow` adds the row of `when`'s day, without an enter time if `noEnterTime`; otherwise gives today's row its
// enter time. Today is the clock's day, also where `when` is adjusted to the day before.
[[nodiscard]] bool RecordEnter(const Context& context, Connection& connection, const QString& staff, Moment when,
                               bool newRow, bool noEnterTime);
// Gives the row of `dateId` ("yyyymmdd") its leave time; an empty `dateId` adds the row of `when`'s day.
[[nodiscard]] bool RecordLeave(const Context& context, Connection& connection, const QString& staff, Moment when,
                               const QString& dateId);
// Adds an outing to the card row.
[[nodiscard]] bool RecordGoOut(const Context& context, Connection& connection, std::int64_t cardId, Moment when);
// Ends the card row's last outing, or adds one with a return alone when that has ended.
[[nodiscard]] bool RecordComeIn(const Context& context, Connection& connection, std::int64_t cardId, Moment when);

} // namespace kurbo
