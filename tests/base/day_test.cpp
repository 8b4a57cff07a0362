#include "base/clock.h"
#include "base/day.h"
#include "base/day_arithmetic.h"
#include "support/desk.h"

namespace kurbo::test {

TEST(DayTexts, AreReadBackAsWritten) {
    const Moment moment = at(*makeDay(2024, 2, 29), 8, 5, 9);
    EXPECT_EQ(dateId(dayOf(moment)), u"20240229"_q);
    EXPECT_EQ(slashMoment(moment), u"2024/02/29 08:05:09"_q);
    EXPECT_EQ(isoText(moment), "2024-02-29 08:05:09");
    EXPECT_EQ(parseDateId(u"20240229"_q), dayOf(moment));
    EXPECT_EQ(parseSlashMoment(u"2024/2/29 8:05:09"_q), moment);
    EXPECT_EQ(parseSlashMoment(u"2024/02/29 08:05"_q), moment - std::chrono::seconds(9));
    EXPECT_EQ(parseIso("2024-02-29 08:05:09"), moment);
}

TEST(DayTexts, RefuseWhatIsNoDay) {
    for (const QString& text : {u"2026/02/29"_q, u"2026/13/01"_q, u"2026/00/10"_q, u"2026/04/01x"_q, u"26/4/1"_q,
                                u"2026-04-01"_q, u"2026/04/01 24:00"_q, u"2026/04/01 9:60"_q, QString()})
        EXPECT_FALSE(parseSlashMoment(text)) << text;
    for (const QString& text : {u"20260229"_q, u"2026041"_q, u"202604011"_q, u"２０２６０４０１"_q})
        EXPECT_FALSE(parseDateId(text)) << text;
    for (const char* text : {"2026-04-01", "2026-04-01 25:00:00", "2026-04-31 00:00:00", "2026-04-01T00:00:00"})
        EXPECT_FALSE(parseIso(text)) << text;
}

TEST(DayTexts, ClockShowsTheWeekdayAndNoLeadingZeroHour) {
    EXPECT_EQ(clockText(at(*makeDay(2026, 4, 5), 8, 5, 9)), u"2026年04月05日(日)  8:05:09"_q);
    EXPECT_EQ(clockText(at(*makeDay(2026, 11, 21), 18, 0, 0)), u"2026年11月21日(土)  18:00:00"_q);
}

TEST(Days, MonthsEndWithTheirOwnLastDay) {
    EXPECT_EQ(addMonths(*makeDay(2026, 1, 31), 1), makeDay(2026, 2, 28));
    EXPECT_EQ(addMonths(*makeDay(2024, 3, 31), -1), makeDay(2024, 2, 29));
    EXPECT_EQ(addMonths(*makeDay(2026, 12, 15), 1), makeDay(2027, 1, 15));
}

// April 2026 begins on a Wednesday, 4, and has 30 days.
TEST(Days, NthWeekdayOfAMonth) {
    const Day april = *makeDay(2026, 4, 20);
    EXPECT_EQ(NthWeekday(april, 1, 4), makeDay(2026, 4, 1));
    EXPECT_EQ(NthWeekday(april, 1, 3), makeDay(2026, 4, 7));
    EXPECT_EQ(NthWeekday(april, 2, 1), makeDay(2026, 4, 12));
    EXPECT_EQ(NthWeekday(april, 5, 5), makeDay(2026, 4, 30));
    EXPECT_EQ(NthWeekday(april, 5, 6), std::nullopt);
    EXPECT_EQ(NthWeekday(april, 0, 4), std::nullopt);
}

TEST(Days, YearsAndMonthsAreWholeOnes) {
    const Day today = *makeDay(2026, 4, 15);
    const auto until = [&](std::optional<Day> from, std::optional<Day> to) { return YearsAndMonths(*from, to, today); };
    EXPECT_EQ(until(makeDay(1990, 4, 15), {}), u"003600"_q);
    EXPECT_EQ(until(makeDay(1990, 4, 16), {}), u"003511"_q);
    EXPECT_EQ(until(makeDay(2025, 12, 31), {}), u"000003"_q);
    EXPECT_EQ(until(makeDay(2024, 2, 29), makeDay(2025, 2, 28)), u"000100"_q);
    EXPECT_EQ(until(makeDay(2025, 11, 30), makeDay(2026, 2, 28)), u"000003"_q);
    EXPECT_EQ(until(makeDay(2026, 4, 16), {}), u"000000"_q);
}

TEST(Clocks, ShiftedClockRunsOnAnotherDay) {
    const ShiftedClock shifted(*makeDay(2030, 1, 2));
    EXPECT_EQ(shifted.today(), makeDay(2030, 1, 2));
}

} // namespace kurbo::test
