#pragma once

#include "base/guard.h"
#include "store/connection.h"
#include "totals/csv/csv_record.h"

#include <functional>

namespace kurbo {

// Which saved months go out: those of one person, or with an empty staff code those of the people shown in the section;
// from month to month ("yyyymm"), both included.
struct CsvSpan {
    QString section;
    QString staff;
    QString from;
    QString to;
};

// The months as they are saved, person by person in the order of the people; the records carry the span's section.
// Throws a Fault.
[[nodiscard]] QList<MonthRecord> savedMonths(Connection& connection, const CsvSpan& span);

// What becomes of a month that the store already holds.
enum class OnExisting { Overwrite, Skip };

struct CsvAdded {
    // Abandoned: the person has stopped it. Failed and Abandoned have been told and have stored nothing.
    enum class End { Done, Abandoned, Failed };
    End end = End::Failed;
    int stored = 0;
    int skipped = 0;
};

// What has been done, for the person.
[[nodiscard]] QString addedText(const CsvAdded& added);

// Whether the person has asked for a stop since the last call. It is called before each month, while other clients
// wait: it lets the screen breathe and looks, and asks nothing.
using TakeStop = std::function<bool()>;

// Enters the months in the store, all or none, with a step of the progress each; the balance of paid leave follows
// where the month is the person's newest. A stop undoes what has been entered before it asks whether it is meant: if it
// isn't, the adding starts over.
[[nodiscard]] CsvAdded addToDatabase(const Context& context, Connection& connection, const QList<MonthRecord>& months,
                                     OnExisting onExisting, const TakeStop& takeStop);

} // namespace kurbo
