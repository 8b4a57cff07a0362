#include "engine/hours.h"
#include "support/desk.h"

namespace kurbo::test {

TEST(Hours, AreWrittenInBothForms) {
    struct Case {
        Minutes minutes;
        const char16_t* sexagesimal;
        const char16_t* signedSexagesimal;
        const char16_t* decimal;
        const char16_t* signedDecimal;
    };
    for (const auto& [minutes, sexagesimal, signedSexagesimal, decimal, signedDecimal] :
         {Case{0, u"0:00", u"+0:00", u"0.0", u"+0.0"}, Case{10230, u"170:30", u"+170:30", u"170.5", u"+170.5"},
          Case{-90, u"-1:30", u"-1:30", u"-1.5", u"-1.5"}, Case{-1, u"0:01", u"-0:01", u"-0.02", u"-0.02"},
          Case{-61, u"-1:01", u"-1:01", u"-1.02", u"-1.02"}, Case{5, u"0:05", u"+0:05", u"0.08", u"+0.08"},
          Case{20, u"0:20", u"+0:20", u"0.33", u"+0.33"}, Case{40, u"0:40", u"+0:40", u"0.67", u"+0.67"},
          Case{59, u"0:59", u"+0:59", u"0.98", u"+0.98"}}) {
        EXPECT_EQ(FormatHours(minutes, 1, false), QString::fromUtf16(sexagesimal));
        EXPECT_EQ(FormatHours(minutes, 1, true), QString::fromUtf16(signedSexagesimal));
        EXPECT_EQ(FormatHours(minutes, 0, false), QString::fromUtf16(decimal));
        EXPECT_EQ(FormatHours(minutes, 0, true), QString::fromUtf16(signedDecimal));
    }
}

TEST(Hours, AreReadBack) {
    for (Minutes minutes = 0; minutes < 20000; minutes += 7) {
        EXPECT_EQ(ParseHours(FormatHours(minutes, 1, false), 1), minutes);
        EXPECT_EQ(ParseHours(FormatHours(minutes, 1, true), 1), minutes);
        EXPECT_EQ(ParseHours(FormatHours(minutes, 0, false), 0), minutes);
    }
    for (const QString& text : {u"abc"_q, QString(), u"30"_q, u":30"_q, u"a:30"_q, u"1:x0"_q})
        EXPECT_EQ(ParseHours(text, 1), 0) << text;
    EXPECT_EQ(ParseHours(u"170.5"_q, 0), 10230);
    EXPECT_EQ(ParseHours(u" 1,000.5 "_q, 0), 60030) << "as a person may type it";
    EXPECT_EQ(ParseHours(u"1,000:30"_q, 1), 60030);
    EXPECT_THROW((void)ParseHours(u"40000000:00"_q, 1), Fault);
    EXPECT_THROW((void)ParseHours(u"1e39"_q, 0), Fault);
    EXPECT_EQ(ParseHours(u"x"_q, 0), 0);
    EXPECT_EQ(ParseHours(u"0.025"_q, 0), 2) << "1.5 goes to the even minute";
    EXPECT_EQ(ParseHours(u"0.04166"_q, 0), 2) << "2.5 too";
}

TEST(Hours, AreRoundedTowardsTheirSide) {
    EXPECT_EQ(RoundMinutes(-10, 0, 30), -30);
    EXPECT_EQ(RoundMinutes(-10, 1, 30), 0);
    EXPECT_EQ(RoundMinutes(59, 0, 30), 30);
    EXPECT_EQ(RoundMinutes(31, 1, 30), 60);
    EXPECT_EQ(RoundMinutes(60, 1, 30), 60);
    EXPECT_EQ(RoundMinutes(59, 2, 30), 0);
    EXPECT_EQ(RoundMinutes(59, 0, 0), 0);
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
    EXPECT_EQ(periodOfMonth(2024, 2, 31), (Period{*makeDay(2024, 2, 1), *makeDay(2024, 2, 29)}));
    EXPECT_EQ(periodOfMonth(2026, 1, 20), (Period{*makeDay(2025, 12, 21), *makeDay(2026, 1, 20)}));
    EXPECT_EQ(periodOfMonth(2026, 3, 27), (Period{*makeDay(2026, 2, 28), *makeDay(2026, 3, 27)}));
    EXPECT_FALSE(periodOfMonth(2026, 3, 28));
    EXPECT_FALSE(periodOfMonth(2026, 13, 31));
}

} // namespace kurbo::test
