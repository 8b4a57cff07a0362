#pragma once

#include "demo/demo_calendar.h"
#include "demo/demo_month.h"
#include "demo/demo_people.h"

namespace kurbo {

// Half days of leave, of the three kinds.
struct LeaveHalves {
    int paid = 0;
    int special = 0;
    int compens = 0;
};

// Gathers a person's days and saves each closing period when it is over.
class DemoMonths final {
  public:
    DemoMonths(const Person& person, QString section, int number, const CardSpan& span, bool flexible);

    void grant(int halves, int most);
    void add(const DemoFacts& facts, const LeaveHalves& leaves);
    void endDay(Connection& connection, Day day);
    // What is left of the paid leave after the newest saved month.
    [[nodiscard]] int savedPaidHalves() const { return savedHalves_; }

  private:
    [[nodiscard]] bool closesOn(Day day) const;
    void save(Connection& connection, Day first, Day last, bool newest);
    [[nodiscard]] Values approvals(Day last, bool newest) const;

    const Person& person_;
    const QString section_;
    const int number_; // of the person, so that not all are alike
    const CardSpan span_;
    const bool flexible_;
    MonthFigures figures_;
    LeaveHalves leaves_;
    int paidHalves_;
    int savedHalves_;
};

} // namespace kurbo
