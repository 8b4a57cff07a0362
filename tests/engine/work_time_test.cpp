#include "engine/work_time.h"

#include "support/desk.h"
#include "support/table.h"

#include <QMap>

#include <functional>

namespace kurbo::test {
namespace {

const Day day = *makeDay(2026, 4, 15);

// "08:55" on the first day, "+07:00" on the second, "++07:00" on the third; seconds may follow.
Moment time(const QString& text) {
    const auto days = text.count(u'+');
    const QStringList parts = text.mid(days).split(u':');
    return at(day + std::chrono::days(days), parts[0].toInt(), parts[1].toInt(), parts.value(2).toInt());
}

// "Work 09:00-12:00 13:00-18:00; Over 18:00-22:00": property suffix and its bands from index 0; "-" leaves one empty.
clsWorkTime rulesOf(const QString& bands) {
    clsWorkTime rules;
    rules.plngRoundMethod = 1;
    for (const QString& list : bands.split(u';', Qt::SkipEmptyParts)) {
        const QStringList words = list.trimmed().split(u' ');
        for (int i = 1; i < words.size(); ++i) {
            if (words[i] == u"-") continue;
            rules.setBand(u"pstrStart"_q + words[0], i - 1, words[i].section(u'-', 0, 0));
            rules.setBand(u"pstrEnd"_q + words[0], i - 1, words[i].section(u'-', 1));
        }
    }
    return rules;
}

clsWorkTime stay(clsWorkTime rules, const QString& enter, const QString& leave, int nextDayType = 0) {
    rules.pdtmEnter(time(enter));
    rules.pdtmLeave(time(leave));
    rules.plngNextDayType(nextDayType);
    return rules;
}

clsWorkTime stay(const QString& bands, const QString& enter, const QString& leave, int nextDayType = 0) {
    return stay(rulesOf(bands), enter, leave, nextDayType);
}

std::int64_t failure(const std::function<void()>& set, const QString& text) {
    try {
        set();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.source(), u"clsWorkTime"_q);
        EXPECT_EQ(fault.description(), text);
        return fault.number();
    }
    return 0;
}

constexpr std::int64_t noTime = -2147220990;
constexpr std::int64_t badOrder = -2147220989;
constexpr std::int64_t noUnit = -2147220988;

} // namespace

// The rule book: bands, enter, leave and the kind of the next day, what is asked and its minutes.
TEST(WorkTimeRules, StandAsInTheBook) {
    const QMap<QString, Minutes (clsWorkTime::*)() const> quantities{
        {u"AbsentHour"_q, &clsWorkTime::AbsentHour},   {u"AmAbsentHour"_q, &clsWorkTime::AmAbsentHour},
        {u"AmEarlyWork"_q, &clsWorkTime::AmEarlyWork}, {u"AmOverWork"_q, &clsWorkTime::AmOverWork},
        {u"EarlyWork"_q, &clsWorkTime::EarlyWork},     {u"HolidayLateWork"_q, &clsWorkTime::HolidayLateWork},
        {u"HolidayWork"_q, &clsWorkTime::HolidayWork}, {u"LateWork"_q, &clsWorkTime::LateWork},
        {u"OverWork"_q, &clsWorkTime::OverWork},       {u"PmAbsentHour"_q, &clsWorkTime::PmAbsentHour},
        {u"PmEarlyWork"_q, &clsWorkTime::PmEarlyWork}, {u"PmOverWork"_q, &clsWorkTime::PmOverWork},
        {u"WorkTime"_q, &clsWorkTime::WorkTime}};
    for (const QStringList& row : rowsOf(R"(
Work 09:00-12:00 13:00-18:00                               | 08:55 18:30 0      | WorkTime 480
Work 09:00-12:00 - 13:00-18:00                             | 08:55 18:30 0      | WorkTime 180
Work 09:00-12:00                                           | 09:00 +10:00 0     | WorkTime 240
Work 22:00-00:00                                           | 23:00 +01:00 0     | WorkTime 60
Work 09:00-12:00                                           | 11:59:01 12:00 0   | WorkTime 0
Work 09:00-12:00 13:00-18:00                               | 11:59:30 13:00:30 0 | WorkTime 1
                                                           | 09:00 18:00 0      | WorkTime 0
Late 22:00-00:00 00:00-05:00                               | 18:00 +03:00 0     | LateWork 300
Over 18:00-22:00; AfterLate 05:00-09:00                    | 18:00 +07:00 0     | OverWork 360
Over 18:00-22:00; AfterLate 05:00-09:00                    | 18:00 +04:00 0     | OverWork 240
Over 18:00-22:00; AfterLate 05:00-09:00                    | 18:00 +07:00 5     | OverWork 240
AfterLate 22:00-00:00                                      | 18:00 ++01:00 0    | OverWork 120
HolidayAfterLate 05:00-08:00; AfterLate 05:00-09:00        | 18:00 +09:00 1     | OverWork 180
PmHolidayAfterLate 05:00-06:00                             | 18:00 +09:00 3     | OverWork 60
AmAfterLate 05:00-07:00                                    | 18:00 +09:00 2     | AmOverWork 120
AmAfterLate 05:00-07:00                                    | 18:00 +09:00 2     | PmOverWork 0
PmHolidayAfterLate 05:00-06:00                             | 18:00 +09:00 2     | PmOverWork 60
PmHolidayOver 12:00-13:00 13:00-14:00 14:00-15:00 15:00-16:00 | 09:00 18:00 0      | PmOverWork 240
Early 05:00-09:00                                          | 23:30 +06:00 0     | EarlyWork 0
Early 05:00-09:00                                          | 06:00 +06:00 0     | EarlyWork 180
AmHolidayEarly 05:00-09:00                                 | 23:30 +06:00 0     | AmEarlyWork 60
PmHolidayEarly 05:00-09:00                                 | 23:30 +06:00 0     | PmEarlyWork 60
HolidayWork 09:00-22:00; HolidayEarly 05:00-09:00          | 08:00 10:00 0      | HolidayWork 120
HolidayLate 22:00-00:00 00:00-05:00                        | 20:00 +02:00 0     | HolidayLateWork 240
Work 09:00-12:00 13:00-18:00                               | 08:00 19:00 0      | AbsentHour 0
Work 09:00-12:00 13:00-18:00                               | 09:30 17:00:30 0   | AbsentHour 89
Work 09:00-10:00                                           | 11:00 12:00 0      | AbsentHour 60
Work 22:00-00:00                                           | 22:00 23:00 0      | AbsentHour 60
AmHolidayWork 13:00-17:30                                  | 13:00 16:30 0      | AmAbsentHour 60
PmHolidayWork 09:00-12:00                                  | 10:00 12:00 0      | PmAbsentHour 60
)")) {
        const QStringList stays = row[1].split(u' ');
        const QStringList asked = row[2].split(u' ');
        const clsWorkTime rules = stay(row[0], stays[0], stays[1], stays[2].toInt());
        EXPECT_EQ((rules.*quantities[asked[0]])(), Minutes(asked[1].toInt())) << row.join(u'|');
    }
}

TEST(WorkTime, FlexibleDaysCountCoreAndFlexibleBands) {
    clsWorkTime rules = rulesOf(u"Core 10:00-15:00; Flex 07:00-10:00 15:00-22:00; Work 09:00-10:00; "
                                "AmHolidayCore 13:00-15:00; AmHolidayFlex 15:00-19:00; AmHolidayWork 13:00-14:00; "
                                "PmHolidayCore 10:00-12:00; PmHolidayFlex 08:00-10:00"_q);
    const auto am = [&] { return stay(rules, u"12:00"_q, u"18:00"_q).AmWorkTime(); };
    rules.pbleAmFlexTime = true;
    EXPECT_EQ(am(), 60min) << "the weekday's switch decides";
    EXPECT_EQ(stay(rules, u"14:00"_q, u"18:00"_q).AmAbsentHour(), 60min) << "its own switch decides here";
    rules.pbleFlexTime = true;
    EXPECT_EQ(am(), 300min);
    EXPECT_EQ(stay(rules, u"09:00"_q, u"18:00"_q).WorkTime(), 540min);
    EXPECT_EQ(stay(rules, u"11:00"_q, u"14:00"_q).AbsentHour(), 120min) << "only core time can be missed";
    rules.pblePmFlexTime = true;
    EXPECT_EQ(stay(rules, u"09:00"_q, u"13:00"_q).PmWorkTime(), 180min);
    EXPECT_EQ(stay(rules, u"09:00"_q, u"11:00"_q).PmAbsentHour(), 60min);
}

TEST(WorkTime, PunchesAreRoundedFromTheTopOfTheHour) {
    for (const auto& [text, direction, unit, rounded] : {std::tuple{u"10:59"_q, 0, 7, u"10:56"_q},
                                                         {u"11:03"_q, 0, 7, u"11:00"_q},
                                                         {u"10:40"_q, 0, 90, u"10:00"_q},
                                                         {u"10:40"_q, 1, 90, u"11:30"_q},
                                                         {u"09:30"_q, 1, 30, u"09:30"_q},
                                                         {u"09:30:01"_q, 1, 30, u"10:00"_q},
                                                         {u"23:50"_q, 1, 30, u"+00:00"_q},
                                                         {u"23:50:59"_q, 2, 30, u"23:50:59"_q}})
        EXPECT_EQ(RoundPunch(time(text), direction, Minutes(unit)), time(rounded)) << text;
    clsWorkTime rules = rulesOf(u"Work 00:00-02:00 09:00-12:00"_q);
    rules.plngRoundMethod = 0;
    EXPECT_EQ(stay(rules, u"09:01"_q, u"11:59"_q).WorkTime(), 120min) << "enter up, leave down";
    EXPECT_EQ(stay(rules, u"23:50"_q, u"+01:00"_q).WorkTime(), 60min) << "on the date that it was rounded to";
    EXPECT_EQ(stay(rules, u"10:01"_q, u"10:29"_q).WorkTime(), 0min) << "turned round, it overlaps nothing";
}

TEST(WorkTime, LatenessIsMeasuredOnTheRawTimes) {
    clsWorkTime rules =
        rulesOf(u"Work 09:00-12:00 13:00-18:00; AmHolidayWork 13:00-18:00; PmHolidayWork 09:00-12:00"_q);
    rules.plngRoundMethod = 0;
    rules.plngRoundEnter = 0;
    const clsWorkTime late = stay(rules, u"09:00:01"_q, u"17:59:59"_q);
    EXPECT_EQ(late.LateEnter() + late.EarlyLeave(), Count(2));
    EXPECT_EQ(late.AbsentHour(), 30min) << "rounding changes absence, not the record of lateness";
    const clsWorkTime punctual = stay(rules, u"09:00"_q, u"18:00"_q);
    EXPECT_EQ(punctual.LateEnter() + punctual.EarlyLeave(), Count(0));
    EXPECT_EQ(stay(rules, u"13:01"_q, u"18:00"_q).AmLateEnter(), Count(1));
    EXPECT_EQ(stay(rules, u"09:00"_q, u"11:59"_q).PmEarlyLeave(), Count(1));
    EXPECT_EQ(stay(rules, u"13:01"_q, u"+07:00"_q).EarlyLeave(), Count(0)) << "the enter's date counts";
    EXPECT_EQ(stay(u"Work 15:00-00:00"_q, u"15:00"_q, u"16:00"_q).EarlyLeave(), Count(0)) << "none is before midnight";
    EXPECT_EQ(stay(u""_q, u"15:00"_q, u"16:00"_q).LateEnter(), Count(0));
}

TEST(WorkTime, TheBorderFollowsTheNextDay) {
    clsWorkTime rules =
        rulesOf(u"Work 09:00-12:00; Flex 07:00-10:00; HolidayWork 08:00-12:00; AmHolidayWork 13:00-17:00; "
                "AmHolidayFlex 12:00-13:00; PmHolidayWork 09:30-12:00; PmHolidayFlex 06:30-09:00"_q);
    const auto border = [&rules](int type) {
        rules.plngNextDayType(type);
        return rules.borderTime() / 1min;
    };
    const auto borders = [&] { return std::vector{border(0), border(1), border(2), border(3), border(4)}; };
    EXPECT_EQ(borders(), (std::vector<std::int64_t>{540, 480, 780, 570, 570})) << "other values leave it";
    rules.pbleFlexTime = rules.pbleAmFlexTime = rules.pblePmFlexTime = true;
    EXPECT_EQ(borders(), (std::vector<std::int64_t>{420, 480, 720, 390, 390}));
}

TEST(WorkTime, SettersRefuseWithTheirTexts) {
    clsWorkTime rules = rulesOf(u"Work 09:00-12:00; HolidayEarly 05:00-00:00"_q);
    for (const QStringList& row : rowsOf(R"(
pstrStartWork       | 4  | 09:00 | -2147220991 | インデックスが有効範囲にありません。
pstrStartWork       | -1 | 09:00 | 9           | インデックスが有効範囲にありません。
pstrStartWork       | 0  | 24:00 | -2147220990 | 勤務開始時刻に時間以外の値が設定されています。
pstrEndAmAfterLate  | 0  | 9:00  | -2147220990 | 午前休日明け残業終了時刻に時間以外の値が設定されています。
pstrEndWork         | 0  | 09:00 | -2147220989 | 勤務終了時刻が開始時刻より前に設定されています。
pstrEndHolidayEarly | 0  | 05:00 | -2147220989 | 休日早出終了時刻が休日早出開始時刻より前に設定されています。
)"))
        EXPECT_EQ(failure([&] { rules.setBand(row[0], row[1].toInt(), row[2]); }, row[4]), row[3].toLongLong());
    EXPECT_EQ(rules.bands(DayType::Weekday, BandKind::Work).at(0).end, 12h) << "the old value stays";

    EXPECT_EQ(failure([&] { rules.pstrAmStandardTime(u"8:00"); },
                      u"午前休日時の標準労働時間に時間以外の値が設定されています。"_q),
              noTime);
    EXPECT_EQ(rules.plngAmStandardTime(), 240min);
    EXPECT_EQ(failure([&] { rules.plngRoundUnit(0min); }, u"端数処理単位が設定されていません。"_q), noUnit);
    for (const int closeDay : {28, 0, 32})
        EXPECT_EQ(failure([&] { rules.plngCloseDay(closeDay); }, u"タイムカード締日に不正な日付が設定されています。"_q),
                  noTime);
    EXPECT_EQ(rules.plngRoundUnit(), 30min);

    EXPECT_EQ(failure([&] { rules.pdtmEnter({}); }, u"出社時刻に時間以外の値が設定されています。"_q), noTime);
    rules.pdtmEnter(time(u"10:00"_q));
    EXPECT_EQ(failure([&] { rules.pdtmLeave({}); }, u"退社時刻に時間以外の値が設定されています。"_q), noTime);
    EXPECT_EQ(failure([&] { rules.pdtmLeave(time(u"09:59:59"_q)); }, u"退社時刻が出社時刻より前に設定されています。"_q),
              badOrder);
}

} // namespace kurbo::test
