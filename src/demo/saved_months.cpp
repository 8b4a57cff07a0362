#include "demo/saved_months.h"

#include <algorithm>

using namespace std::chrono;

namespace kurbo {

DemoMonths::DemoMonths(const Person& person, QString section, int number, const CardSpan& span, bool flexible)
    : person_(person),
      section_(std::move(section)),
      number_(number),
      span_(span),
      flexible_(flexible),
      paidHalves_(person.paidHalves),
      savedHalves_(person.paidHalves) {}

void DemoMonths::grant(int halves, int most) {
    const int added = std::max(0, std::min(paidHalves_ + halves, most) - paidHalves_);
    paidHalves_ += added;
    savedHalves_ += added;
}

void DemoMonths::add(const DemoFacts& facts, const LeaveHalves& leaves) {
    addDay(figures_, flexible_, person_.shift, facts);
    leaves_.paid += leaves.paid;
    leaves_.special += leaves.special;
    leaves_.compens += leaves.compens;
}

bool DemoMonths::closesOn(Day day) const {
    return dayOfMonth(day + days{person_.closeDay == 31 ? 1 : 0}) == (person_.closeDay == 31 ? 1 : person_.closeDay);
}

void DemoMonths::endDay(Connection& connection, Day day) {
    if (!closesOn(day)) return;
    const Day first = addMonths(day + days{1}, -1);
    const bool newest = addMonths(day + days{1}, 1) > span_.until;
    const bool forgotten = newest && number_ % 4 == 3;
    paidHalves_ -= leaves_.paid;
    if (first >= span_.first && !forgotten) save(connection, first, day, newest);
    figures_ = {};
    leaves_ = {};
}

// The newest month still waits for the superiors, and for some of the people.
Values DemoMonths::approvals(Day last, bool newest) const {
    const int turn = number_ + static_cast<int>(static_cast<unsigned>(civil(last).month()));
    const bool personal = turn % (newest ? 3 : 13) != 0;
    const bool superior = !newest && turn % 9 != 0;
    return {Value::yesNo(personal), Value::yesNo(superior)};
}

void DemoMonths::save(Connection& connection, Day first, Day last, bool newest) {
    static const QString statement = QStringLiteral(
        "INSERT INTO T05_Approved (F_Staff, F_Section, F_Year, F_Month, F_WorkDay, F_PaidTotal, F_Paid, F_Special, "
        "F_Compens, F_AbsentDay, F_LateEnter, F_EarlyLeave, F_Term, F_Work, F_LegalOver, F_Over, F_Late, F_Early, "
        "F_Holiday, F_HolidayLate, F_LegalHoliday, F_LegalLate, F_Absent, F_PersonalApproval, F_SuperiorApproval) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    const MonthFigures final = finalFigures(figures_, flexible_, person_.adjust());
    const QString id = dateId(last);
    savedHalves_ = paidHalves_;
    Values values{person_.code,
                  section_,
                  id.left(4),
                  id.mid(4, 2),
                  final.workDays,
                  paidHalves_ / 2.0,
                  leaves_.paid / 2.0,
                  leaves_.special / 2.0,
                  leaves_.compens / 2.0,
                  final.absentDays,
                  final.lateEnters,
                  final.earlyLeaves,
                  slashDate(first) + u'-' + slashDate(last)};
    for (std::size_t i = 0; i < figureCount; ++i) {
        const bool shown = !flexible_ || static_cast<Figure>(i) != Figure::LegalOver;
        values.append(shown ? Value(final.minutes[i]) : Value());
    }
    connection.execute(statement, values + approvals(last, newest));
}

} // namespace kurbo
