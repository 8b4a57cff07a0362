#include "demo/demo_month.h"

#include <gtest/gtest.h>

namespace kurbo {
namespace {

constexpr int clock(int hour, int minute, int second = 0) {
    return (hour * 60 + minute) * 60 + second;
}

MonthFigures ofDay(const DemoFacts& facts, bool flexible = false, Shift shift = Shift::Days) {
    MonthFigures month;
    addDay(month, flexible, shift, facts);
    return month;
}

// Working time, legal overtime, overtime, late, early, absence.
std::array<int, 6> figuresOf(const MonthFigures& month) {
    return {month.of(Figure::Work), month.of(Figure::LegalOver), month.of(Figure::Over),
            month.of(Figure::Late), month.of(Figure::Early),     month.of(Figure::Absent)};
}

struct Case {
    DemoFacts facts;
    std::array<int, 6> figures;
    Shift shift = Shift::Days;
};

TEST(DemoMonth, SplitsADayIntoTheBandsOfItsKind) {
    using enum DemoDay;
    for (const Case& c :
         {Case{{Work, DayKind::Weekday, clock(7, 50, 10), clock(23, 59)}, {450, 30, 240, 105, 60, 0}},
          {{Work, DayKind::Holiday, clock(8, 59), clock(24 + 6, 10)}, {450, 30, 240 + 60, 420, 0, 0}},
          {{Work, DayKind::Weekday, clock(14, 52), clock(24, 40)}, {480, 0, 0, 150, 0, 0}, Shift::Nights},
          {{MorningLeave, DayKind::Weekday, clock(12, 50), clock(18, 0)}, {270, 30, 0, 0, 0, 0}},
          {{AfternoonLeave, DayKind::Weekday, clock(8, 0), clock(14, 0)}, {180, 0, 0, 0, 60, 0}},
          {{AfternoonOff, DayKind::Holiday, clock(8, 50), clock(14, 0)}, {180, 60, 0, 0, 0, 0}},
          {{Work, DayKind::Weekday, {}, {}}, {0, 0, 0, 0, 0, 450}},
          {{Work, DayKind::Weekday, clock(9, 0), {}}, {0, 0, 0, 0, 0, 0}}}) {
        const MonthFigures month = ofDay(c.facts, false, c.shift);
        EXPECT_EQ(figuresOf(month), c.figures);
        EXPECT_EQ(month.absentDays, c.figures[5] == 450 ? 1 : 0) << "neither a forgotten punch";
        EXPECT_EQ(month.workDays, c.facts.enter && c.facts.leave ? 1 : 0);
    }
    EXPECT_EQ(ofDay({WholeLeave, DayKind::Weekday, {}, {}}).absentDays, 0);
}

TEST(DemoMonth, CountsLatenessByTheRealTimesAndAbsenceByTheRounded) {
    const MonthFigures late = ofDay({DemoDay::Work, DayKind::Weekday, clock(9, 0, 1), clock(17, 29, 59)});
    EXPECT_EQ(late.lateEnters, 1);
    EXPECT_EQ(late.earlyLeaves, 1);
    EXPECT_EQ(late.of(Figure::Absent), 30);
    EXPECT_EQ(late.workDays, 1);
}

TEST(DemoMonth, KeepsHolidayWorkApart) {
    const MonthFigures sunday = ofDay({DemoDay::LegalHoliday, DayKind::Weekday, clock(8, 0), clock(23, 0)});
    EXPECT_EQ(sunday.of(Figure::LegalHoliday), 60 + 180 + 540);
    EXPECT_EQ(sunday.of(Figure::LegalLate), 60);
    EXPECT_EQ(sunday.of(Figure::Holiday) + sunday.of(Figure::Work), 0);
    EXPECT_EQ(sunday.workDays, 1);
}

TEST(DemoMonth, RoundsAndCutsTheSumsAtTheEnd) {
    MonthFigures month;
    for (int day = 0; day < 2; ++day)
        addDay(month, true, Shift::Days, {DemoDay::Work, DayKind::Weekday, clock(7, 53), clock(17, 0)});
    EXPECT_EQ(month.of(Figure::Work), 2 * 487);
    month.of(Figure::Over) = 2701;
    const MonthFigures final = finalFigures(month, true, Adjust::Agreement);
    EXPECT_EQ(final.of(Figure::Work), 960);
    EXPECT_EQ(final.of(Figure::Over), 2700);
    EXPECT_EQ(finalFigures(month, false, Adjust::Unlimited).of(Figure::Over), 2701);
}

} // namespace
} // namespace kurbo
