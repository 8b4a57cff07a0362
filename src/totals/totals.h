#pragma once

#include "base/guard.h"
#include "month/month_figures.h"
#include "store/connection.h"

#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace kurbo {

// Columns of the totals. First and second are name and month, or month and name; then the quantities.
enum class TotalColumn {
    Blank,
    First,
    Second,
    WorkDay,
    Work = columnFrom(WorkDay, Quantity::Work),
    LegalOver = columnFrom(WorkDay, Quantity::LegalOver),
    Over = columnFrom(WorkDay, Quantity::Over),
    Paid = columnFrom(WorkDay, Quantity::Paid),
    Personal = WorkDay + static_cast<int>(quantityCount),
    Superior,
    Term,
    Order,
    Staff,
    Difference,
};
inline constexpr int totalColumns = static_cast<int>(TotalColumn::Difference) + 1;

[[nodiscard]] constexpr TotalColumn totalColumnOf(Quantity id) {
    return static_cast<TotalColumn>(columnFrom(static_cast<int>(TotalColumn::WorkDay), id));
}
// The quantity that stands in the column; none in the other columns.
[[nodiscard]] constexpr const QuantityFacts* quantityAt(TotalColumn column) {
    return column >= TotalColumn::WorkDay && column < TotalColumn::Personal
               ? &quantities[static_cast<std::size_t>(column) - static_cast<std::size_t>(TotalColumn::WorkDay)]
               : nullptr;
}

// A month of one person.
struct TotalRow {
    QString staff;
    QString name;
    QString section; // that the record names; of a calculated month the person's own
    std::chrono::year_month month;
    QString term; // the period, "yyyy/mm/dd-yyyy/mm/dd"
    FigureList figures;
    // From the standard time: of a calculated month in flexible work.
    std::optional<Minutes> difference;
    bool saved = false;
    bool personalApproval = false;
    bool superiorApproval = false;
    QString key; // orders the rows
};

struct Totals {
    bool byStaff = true;
    int countUnit = 1; // 0 decimal, 1 h:mm
    std::array<bool, totalColumns> hidden{};
    std::vector<TotalRow> rows;
    // Whose rules can't be loaded, and why; empty when all could. Their months stand without figures and period.
    QString faults;
};

// The months that can be asked for: those whose texts have four digits for the year, and whose days can be counted.
inline constexpr std::chrono::year_month firstTotalMonth{std::chrono::year(1000), std::chrono::January};
inline constexpr std::chrono::year_month lastTotalMonth{std::chrono::year(9999), std::chrono::December};

// What is asked for: one person, or with an empty staff code the people shown in a section; from month to month, both
// included.
struct TotalsQuestion {
    QString section;
    QString staff;
    std::chrono::year_month from;
    std::chrono::year_month to;
    bool byStaff = true;
};

// The saved months as they were saved, and the others calculated; the months of one person are always by staff. Those
// whose rules are at fault are told in one message, the totals of the others stand. Nothing for months that can't be
// asked for, when the person closes the progress, and after a failure, which is reported under "ShowTotal" or by the
// loader of the company's style.
[[nodiscard]] std::optional<Totals> calculateTotals(const Context& context, Connection& connection,
                                                    const TotalsQuestion& question);

} // namespace kurbo
