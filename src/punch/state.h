#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QString>

namespace kurbo {

// Where a person stands, read from the card rows alone: two letters, in some cases followed by data.
//   NR  no rows up to the day          NE  no row of the day, the last row is finished
//   ND  no row of the day, the last row is open; followed by its date, from GetKurboID also by its id
//   EE  the day's row has no enter time, the row before it is finished or absent
//   RD  the same, the row before it is open; followed by that row's date
//   AE  entered, not left              AL  left
//   ID  the day's row exists; followed by its id
//   ERROR  a failure, already reported
// Dates are "yyyy/mm/dd".
struct StatusCode {
    QString text;
    [[nodiscard]] QString word() const { return text.left(2); }
    [[nodiscard]] bool is(QStringView expected) const { return word() == expected; }
    [[nodiscard]] QString date() const { return text.mid(2, 10); }
    // "yyyymmdd"
    [[nodiscard]] QString dateId() const { return date().remove(u'/'); }
    // Behind "ID", or behind "ND" and its date.
    [[nodiscard]] std::int64_t cardId() const { return text.mid(is(u"ID") ? 2 : 12).toLongLong(); }
    [[nodiscard]] bool failed() const { return text == u"ERROR"; }
};

// For the enter and leave punches. `when` is the adjusted time; rows of later days are not seen.
[[nodiscard]] StatusCode TimeCardStatus(const Context& context, Connection& connection, const QString& staff,
                                        Moment when);
// For the out and in punches, which ask only whether the day before has a leave time.
[[nodiscard]] StatusCode GetKurboID(const Context& context, Connection& connection, const QString& staff, Moment when);

} // namespace kurbo
