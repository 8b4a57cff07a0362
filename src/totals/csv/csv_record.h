#pragma once

#include "month/quantities.h"
#include "store/value.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <array>

namespace kurbo {

// The saved month of one person.
struct MonthRecord {
    QString staff;
    QString section;
    QString year;  // "yyyy"
    QString month; // "mm"
    // In the places of their quantities: 16-bit counts, minutes, and days in single precision. Null where nothing is
    // stored.
    std::array<Value, quantityCount> figures;
    bool personalApproval = false;
    bool superiorApproval = false;
    QString term; // "yyyy/mm/dd-yyyy/mm/dd", or empty

    // "yyyymm"
    [[nodiscard]] QString yearMonth() const { return year + month; }
    friend bool operator==(const MonthRecord&, const MonthRecord&) = default;
};

// A file of months: no heading, a line of 25 fields a month, CP932, each line ended by CR LF. Null figures are written
// as 0. What is written here can be read again. Throws a Complaint that names the month which has a character that the
// code page lacks, or a value that a file can't take.
[[nodiscard]] QByteArray csvBytes(const QList<MonthRecord>& months);

// The months of such a file. A missing last line end and line ends without CR are let pass; nothing else that
// csvBytes() would not write, but days and marks may be spelt in other ways (".5", "1.0", "-1"). Throws a Complaint
// that names `file`, the line and the field at fault.
[[nodiscard]] QList<MonthRecord> readCsv(const QByteArray& bytes, const QString& file);

} // namespace kurbo
