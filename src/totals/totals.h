#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace kurbo {

// Columns of the totals. First and second are name and month, or month and name.
enum class TotalColumn {
    Blank,
    First,
    Second,
    WorkDay,
    Work,
    PaidTotal,
    LegalOver,
    Over,
    Late,
    Early,
    Holiday,
    HolidayLate,
    LegalHoliday,
    LegalLate,
    Absent,
    Paid,
    Special,
    Compens,
    AbsentDay,
    LateEnter,
    EarlyLeave,
    Personal,
    Superior,
    Term,
    Order,
    Staff,
    Difference,
};
inline constexpr int totalColumns = 27;

// The figures stand in the columns 3 to 20.
inline constexpr int firstFigure = 3;
inline constexpr std::size_t totalFigures = 18;
// What a figure counts: one by one, in minutes, or in hundredths of a day.
enum class FigureForm { Count, Hours, Days };
[[nodiscard]] FigureForm figureForm(std::size_t figure);

// A month of one person.
struct TotalRow {
    QString staff;
    QString name;
    QString section; // that the record names; of a calculated month the person's own
    std::chrono::year_month month;
    QString term; // the period, "yyyy/mm/dd-yyyy/mm/dd"
    std::array<std::optional<std::int32_t>, totalFigures> figures;
    // From the standard time, in minutes: of a calculated month in flexible work.
    std::optional<std::int32_t> difference;
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
