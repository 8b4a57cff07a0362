#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QList>
#include <QString>

#include <optional>

namespace kurbo {

// The small questions that several screens ask. A failure is reported here; the caller stops without another word.

// The value of F_DB; nothing on a failure.
[[nodiscard]] std::optional<QString> GetDbPath(const Context& context, Connection& connection, const QString& section);
// The largest F_KurboID plus 1, 1 on an empty table. Throws.
[[nodiscard]] std::int64_t nextKurboId(Connection& connection);
// Name of the day, the empty text on an ordinary day; nothing on a failure.
[[nodiscard]] std::optional<QString> WhichHoliday(const Context& context, Connection& connection, Day date);
// Calendar rows from `from` to `to`, both included, or -1.
[[nodiscard]] int ExistCalendar(const Context& context, Connection& connection, Day from, Day to);
// The same without a report; throws.
[[nodiscard]] int calendarRows(Connection& connection, Day from, Day to);
// That a period or a day has no calendar yet.
[[nodiscard]] QString noCalendarText();
// Says so when `day` has no calendar row.
[[nodiscard]] bool hasCalendar(const Context& context, Connection& connection, Day day);
// The leave time of the person's last row before the day of `border`, when it lies later than `border`; else nothing.
// Throws.
[[nodiscard]] std::optional<Moment> leaveBeyond(Connection& connection, const QString& staff, Moment border);
// Days between the first and the last card row, 0 without rows, or -1.
[[nodiscard]] int RecordedDays(const Context& context, Connection& connection);
// First calendar day, today on an empty calendar, nothing on a failure.
[[nodiscard]] std::optional<Day> GetFirstDate(const Context& context, Connection& connection);
// The same without a report, nothing on an empty calendar; throws.
[[nodiscard]] std::optional<Day> firstCalendarDay(Connection& connection);
// First day of the first saved month, or of this month when none is saved; nothing on a failure.
[[nodiscard]] std::optional<Day> GetFirstMonth(const Context& context, Connection& connection);
// Combo list of a grid column, "#code;value" joined by "|"; without a code field the values alone; with `blank` one "|"
// more at the end. Nothing on a failure.
[[nodiscard]] std::optional<QString> VfgComboList(const Context& context, Connection& connection,
                                                  const QString& statement, const QString& valueField,
                                                  const QString& codeField, bool blank);
// The same with the blank entry, one "|" more, at the beginning.
[[nodiscard]] std::optional<QString> BuildGridList(const Context& context, Connection& connection,
                                                   const QString& statement, const QString& codeField,
                                                   const QString& nameField, bool blank);

// One entry of a list in which a code is chosen by its name.
struct CodeName {
    QString code;
    QString name;
    friend bool operator==(const CodeName&, const CodeName&) = default;
};

// Lists of the login window: the sections of this very file, and the people of one. These throw.
[[nodiscard]] QList<CodeName> loginSections(Connection& connection);
[[nodiscard]] QList<CodeName> loginStaff(Connection& connection, const QString& section);

// Lists of the card and totals screens: all sections that are displayed, and the displayed people of one. These throw.
[[nodiscard]] QList<CodeName> displayedSections(Connection& connection);
[[nodiscard]] QList<CodeName> displayedStaff(Connection& connection, const QString& section);

} // namespace kurbo
