#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QString>

#include <optional>

namespace kurbo {

enum class DayRow {
    None,
    NotEntered,
    Entered, // and not left
    Left,
};

// A card row before the day that still waits for its leave punch.
struct OpenRow {
    std::int64_t id = 0;
    QString dateId; // "yyyymmdd"
    // "yyyy/mm/dd"
    [[nodiscard]] QString slashDate() const {
        return dateId.left(4) + u'/' + dateId.mid(4, 2) + u'/' + dateId.right(2);
    }
};

// Where a person stands, read from the card rows alone.
struct StatusCode {
    DayRow today = DayRow::None;
    std::int64_t cardId = 0;     // of the day's row
    std::optional<OpenRow> open; // the last row before the day, when it is open
};

// For the enter and leave punches: a row with a leave of the whole day is closed without a leave time. `when` is the
// adjusted time; rows of later days are not seen. Nothing on a failure, which is reported.
[[nodiscard]] std::optional<StatusCode> TimeCardStatus(const Context& context, Connection& connection,
                                                       const QString& staff, Moment when);
// The same for the out and in punches: only a leave time closes a row.
[[nodiscard]] std::optional<StatusCode> GetKurboID(const Context& context, Connection& connection, const QString& staff,
                                                   Moment when);

} // namespace kurbo
