#pragma once

#include "base/guard.h"
#include "totals/total_rules.h"

#include <chrono>

namespace kurbo {

// From month to month, both included.
struct MonthSpan {
    std::chrono::year_month from;
    std::chrono::year_month to;
};

// The span of two texts "yyyy/mm"; nothing after a refusal, which is told.
[[nodiscard]] std::optional<MonthSpan> checkedMonths(const Context& context, const QString& start, const QString& end);

// The rows that the person has changed; shows its first refusal and then gives false.
[[nodiscard]] bool CheckData(const Context& context, const TotalSheet& sheet);

// How many rows of saved months are changed, and how many of others, which an update passes over.
struct ChangedMonths {
    int saved = 0;
    int unsaved = 0;
};
[[nodiscard]] ChangedMonths changedMonths(const TotalSheet& sheet);

// Writes what was typed into the saved months, all or none, and takes their approvals away; a month that isn't saved is
// passed over. A typed balance of paid leave becomes the person's, unless a later month is saved. False after a
// reported failure.
[[nodiscard]] bool UpdateTotal(const Context& context, Connection& connection, const TotalSheet& sheet);

// Saved months of one person, or with an empty staff code all that name the section.
struct SavedMonths {
    QString staff;
    QString section;
    MonthSpan span;
};
// How many there are, -1 after a reported failure; and their deletion, false after one.
[[nodiscard]] int CountTotal(const Context& context, Connection& connection, const SavedMonths& months);
[[nodiscard]] bool DeleteTotal(const Context& context, Connection& connection, const SavedMonths& months);

} // namespace kurbo
