#pragma once

#include <QByteArray>
#include <QString>

namespace kurbo {

// A statement of the system's dialect in the words of the engine.
struct Translation {
    QByteArray sql;     // UTF-8
    bool reads = false; // SELECT
    // The one table that a plain SELECT reads, so that its rows can be written back; empty for joins, unions and
    // groups.
    QString table;
};

// Turns the dialect into the engine's SQL: "DELETE * FROM", dates between number signs, "&" with Null as empty text,
// "/" as the division of real numbers, True as any value but 0, and the functions CDate, CLng, Format, Left, Len, Mid,
// Right. Values may stand in the text or take placeholders "?". Throws the fault of a syntax error, also for any
// statement but SELECT, INSERT, UPDATE and DELETE.
[[nodiscard]] Translation translated(QStringView statement);

// The same for reading an ordered SELECT from its last row to its first; `statement` must end in ORDER BY.
[[nodiscard]] Translation translatedFromLast(QStringView statement);

// The same with the row's own number (rowid) put before the first column; `statement` must read one table.
[[nodiscard]] Translation translatedWithRowId(QStringView statement);

} // namespace kurbo
