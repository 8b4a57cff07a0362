#pragma once

#include "card/card_cells.h"
#include "store/connection.h"

#include <array>

namespace kurbo {

// How a month's figure is stored: a count, a time in minutes, or days with a fraction.
enum class MonthKind { Count, Time, Days };

// A column of the final sums and the field of T05_Approved that keeps it.
struct MonthField {
    CardColumn column;
    const char16_t* name;
    MonthKind kind;

    [[nodiscard]] QString field() const { return QString::fromUtf16(name); }
};

// The columns 3 to 20. The first three hold other sums than their days.
inline constexpr std::array monthFields{
    MonthField{CardColumn::Plan, u"F_WorkDay", MonthKind::Count},
    MonthField{CardColumn::Enter, u"F_Work", MonthKind::Time},
    MonthField{CardColumn::Leave, u"F_PaidTotal", MonthKind::Days},
    MonthField{CardColumn::LegalOver, u"F_LegalOver", MonthKind::Time},
    MonthField{CardColumn::Over, u"F_Over", MonthKind::Time},
    MonthField{CardColumn::Late, u"F_Late", MonthKind::Time},
    MonthField{CardColumn::Early, u"F_Early", MonthKind::Time},
    MonthField{CardColumn::HolidayWork, u"F_Holiday", MonthKind::Time},
    MonthField{CardColumn::HolidayLate, u"F_HolidayLate", MonthKind::Time},
    MonthField{CardColumn::LegalHoliday, u"F_LegalHoliday", MonthKind::Time},
    MonthField{CardColumn::LegalLate, u"F_LegalLate", MonthKind::Time},
    MonthField{CardColumn::Absent, u"F_Absent", MonthKind::Time},
    MonthField{CardColumn::Paid, u"F_Paid", MonthKind::Days},
    MonthField{CardColumn::Special, u"F_Special", MonthKind::Days},
    MonthField{CardColumn::Compens, u"F_Compens", MonthKind::Days},
    MonthField{CardColumn::AbsentDay, u"F_AbsentDay", MonthKind::Count},
    MonthField{CardColumn::LateEnter, u"F_LateEnter", MonthKind::Count},
    MonthField{CardColumn::EarlyLeave, u"F_EarlyLeave", MonthKind::Count},
};

// What is stored of a cell's text; Null for an empty one. `unit` 0 is decimal hours, any other h:mm. Throws the fault
// of a text that is no such figure, or too large for its field.
[[nodiscard]] Value figureOf(const MonthField& field, const QString& cell, int unit);

// Whether the person has a saved month behind this one, "yyyymm". Throws a Fault.
[[nodiscard]] bool hasLaterMonth(Connection& connection, const QString& staff, const QString& yearMonth);

// The person's balance of paid leave follows a month's record, "yyyymm", unless a later one has been saved. A record
// without a balance, Null, leaves it as it is: nobody can be calculated without one. Throws a Fault.
void followBalance(Connection& connection, const QString& staff, const QString& yearMonth, const Value& paidTotal);

} // namespace kurbo
