#include "engine/hours.h"
#include "support/desk.h"
#include "support/table.h"

namespace kurbo::test {

TEST(Hours, AreWrittenInBothForms) {
    // Minutes, as hours and minutes, signed, as decimal hours, signed.
    for (const QStringList& row : rowsOf(R"(
0     | 0:00   | +0:00   | 0.0   | +0.0
10230 | 170:30 | +170:30 | 170.5 | +170.5
-90   | -1:30  | -1:30   | -1.5  | -1.5
-1    | 0:01   | -0:01   | -0.02 | -0.02
-61   | -1:01  | -1:01   | -1.02 | -1.02
5     | 0:05   | +0:05   | 0.08  | +0.08
)"))
        for (int form = 0; form < 4; ++form)
            EXPECT_EQ(FormatHours(Minutes(row[0].toInt()), form < 2 ? 1 : 0, form % 2 == 1), row[form + 1]);
}

TEST(Hours, AreReadBack) {
    for (Minutes minutes{}; minutes < 20000min; minutes += 7min) {
        EXPECT_EQ(ParseHours(FormatHours(minutes, 1, false), 1), minutes);
        EXPECT_EQ(ParseHours(FormatHours(minutes, 1, true), 1), minutes);
        EXPECT_EQ(ParseHours(FormatHours(minutes, 0, false), 0), minutes);
    }
    for (const QString& text : {u"abc"_q, QString(), u"30"_q, u":30"_q, u"a:30"_q, u"1:x0"_q})
        EXPECT_EQ(ParseHours(text, 1), 0min) << text;
    EXPECT_EQ(ParseHours(u" 1,000.5 "_q, 0), 60030min) << "as a person may type it";
    EXPECT_THROW((void)ParseHours(u"40000000:00"_q, 1), Fault);
    EXPECT_THROW((void)ParseHours(u"1e39"_q, 0), Fault);
    EXPECT_EQ(ParseHours(u"0.025"_q, 0), 2min) << "1.5 goes to the even minute";
    EXPECT_EQ(ParseHours(u"0.04166"_q, 0), 2min) << "2.5 too";
}

TEST(Hours, AreRoundedTowardsTheirSide) {
    EXPECT_EQ(RoundMinutes(-10min, 0, 30min), -30min);
    EXPECT_EQ(RoundMinutes(-10min, 1, 30min), 0min);
    EXPECT_EQ(RoundMinutes(59min, 0, 30min), 30min);
    EXPECT_EQ(RoundMinutes(60min, 1, 30min), 60min);
    EXPECT_EQ(RoundMinutes(59min, 2, 30min), 0min);
    EXPECT_EQ(RoundMinutes(59min, 0, 0min), 0min);
}

TEST(Periods, BeginBehindTheCloseDay) {
    const Day today = *makeDay(2026, 4, 15);
    EXPECT_EQ(PeriodStartDate(today, 31, today), u"2026/04/01"_q);
    EXPECT_EQ(PeriodStartDate(today, 20, today), u"2026/03/21"_q) << "the 21st is still to come";
    EXPECT_EQ(PeriodStartDate(today, 14, today), u"2026/04/15"_q);
    EXPECT_EQ(PeriodStartDate(*makeDay(2026, 1, 5), 20, today), u"2026/01/21"_q) << "measured against today";
    for (const int closeDay : {28, 29, 30, 0, 32, -1}) EXPECT_EQ(PeriodStartDate(today, closeDay, today), QString());
}

TEST(Periods, OfAMonthEndInIt) {
    EXPECT_EQ(periodOfMonth(std::chrono::year(2024) / 2, 31), (Period{*makeDay(2024, 2, 1), *makeDay(2024, 2, 29)}));
    EXPECT_EQ(periodOfMonth(std::chrono::year(2026) / 1, 20), (Period{*makeDay(2025, 12, 21), *makeDay(2026, 1, 20)}));
    EXPECT_EQ(periodOfMonth(std::chrono::year(2026) / 3, 27), (Period{*makeDay(2026, 2, 28), *makeDay(2026, 3, 27)}));
    EXPECT_FALSE(periodOfMonth(std::chrono::year(2026) / 3, 28));
    EXPECT_FALSE(periodOfMonth(std::chrono::year(2026) / 13, 31));
}

} // namespace kurbo::test
