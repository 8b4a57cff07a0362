#include "base/clock.h"
#include "base/day.h"
#include "base/day_arithmetic.h"
#include "base/public_holidays.h"
#include "support/desk.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

TEST(DayTexts, AreReadBackAsWritten) {
    const Moment moment = at(*makeDay(2024, 2, 29), 8, 5, 9);
    EXPECT_EQ(isoText(moment), "2024-02-29 08:05:09");
    EXPECT_EQ(parseDateId(u"20240229"_q), dayOf(moment));
    EXPECT_EQ(parseSlashMoment(u"2024/2/29 8:05:09"_q), moment);
    EXPECT_EQ(parseSlashMoment(u"2024/02/29 08:05"_q), moment - std::chrono::seconds(9));
    EXPECT_EQ(parseIso("2024-02-29 08:05:09"), moment);
    EXPECT_EQ(ShiftedClock(*makeDay(2030, 1, 2)).today(), makeDay(2030, 1, 2));
}

TEST(DayTexts, RefuseWhatIsNoDay) {
    for (const QString& text : u"2026/02/29|2026/13/01|2026/00/10|2026/04/01x|26/4/1|2026-04-01|2026/04/01 24:00|"
                               "2026/04/01 9:60|"_q.split(u'|'))
        EXPECT_FALSE(parseSlashMoment(text)) << text;
    for (const QString& text : u"20260229|2026041|202604011|２０２６０４０１"_q.split(u'|'))
        EXPECT_FALSE(parseDateId(text)) << text;
    for (const char* text : {"2026-04-01", "2026-04-01 25:00:00", "2026-04-31 00:00:00", "2026-04-01T00:00:00"})
        EXPECT_FALSE(parseIso(text)) << text;
}

// Of a day: a month on and a month back, and the second Monday and the fifth Friday of its month.
TEST(Days, MonthsAreOfTheirOwnLength) {
    for (const QStringList& row : rowsOf("20260131 | 20260228 | 20251231 | 20260112 | 20260130\n"
                                         "20240331 | 20240430 | 20240229 | 20240311 | 20240329\n"
                                         "20261215 | 20270115 | 20261115 | 20261214 |")) {
        const Day day = *parseDateId(row[0]);
        EXPECT_EQ(dateId(addMonths(day, 1)) + dateId(addMonths(day, -1)), row[1] + row[2]);
        EXPECT_EQ(NthWeekday(day, 2, 2), parseDateId(row[3]));
        EXPECT_EQ(NthWeekday(day, 5, 6), parseDateId(row[4]));
        EXPECT_EQ(NthWeekday(day, 0, 4), std::nullopt);
    }
}

TEST(Days, YearsAndMonthsAreWholeOnes) {
    for (const QStringList& row :
         rowsOf("19900415||003600\n19900416||003511\n20251231||000003\n20240229|20250228|000100\n"
                "20251130|20260228|000003\n20260416||000000"))
        EXPECT_EQ(YearsAndMonths(*parseDateId(row[0]), parseDateId(row[1]), *makeDay(2026, 4, 15)), row[2]);
}

// The Cabinet Office's lists; the names of substitute days are the usual ones.
TEST(PublicHolidays, FollowTheOfficialLists) {
    int year = 2024;
    for (const QStringList& row : rowsOf(R"(
0101元日 0108成人の日 0211建国記念の日 0212振替休日 0223天皇誕生日 0320春分の日 0429昭和の日 0503憲法記念日 0504みどりの日 0505こどもの日 0506振替休日 0715海の日 0811山の日 0812振替休日 0916敬老の日 0922秋分の日 0923振替休日 1014スポーツの日 1103文化の日 1104振替休日 1123勤労感謝の日
0101元日 0113成人の日 0211建国記念の日 0223天皇誕生日 0224振替休日 0320春分の日 0429昭和の日 0503憲法記念日 0504みどりの日 0505こどもの日 0506振替休日 0721海の日 0811山の日 0915敬老の日 0923秋分の日 1013スポーツの日 1103文化の日 1123勤労感謝の日 1124振替休日
0101元日 0112成人の日 0211建国記念の日 0223天皇誕生日 0320春分の日 0429昭和の日 0503憲法記念日 0504みどりの日 0505こどもの日 0506振替休日 0720海の日 0811山の日 0921敬老の日 0922国民の休日 0923秋分の日 1012スポーツの日 1103文化の日 1123勤労感謝の日
0101元日 0111成人の日 0211建国記念の日 0223天皇誕生日 0321春分の日 0322振替休日 0429昭和の日 0503憲法記念日 0504みどりの日 0505こどもの日 0719海の日 0811山の日 0920敬老の日 0923秋分の日 1011スポーツの日 1103文化の日 1123勤労感謝の日
)")) {
        QStringList texts;
        for (const PublicHoliday& holiday : publicHolidays(year)) texts.append(dateId(holiday.day) + holiday.name);
        EXPECT_EQ(texts.join(u' '),
                  QString(row[0]).replace(u" "_q, u" %1"_q).prepend(u"%1"_q).replace(u"%1"_q, QString::number(year)));
        ++year;
    }
}

TEST(PublicHolidays, MoveWithTheSun) {
    for (const QStringList& row : rowsOf("20230321春分の日\n20280922秋分の日\n20920319春分の日\n20320921国民の休日")) {
        const auto holidays = publicHolidays(row[0].left(4).toInt());
        EXPECT_TRUE(std::ranges::any_of(holidays, [&](const PublicHoliday& holiday) {
            return dateId(holiday.day) + holiday.name == row[0];
        })) << row[0];
    }
}

} // namespace
} // namespace kurbo::test
