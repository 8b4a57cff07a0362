#include "engine/work_time.h"

#include "base/failure.h"
#include "support/desk.h"

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

constexpr std::int64_t noIndex = -2147220991;
constexpr std::int64_t noTime = -2147220990;
constexpr std::int64_t badOrder = -2147220989;
constexpr std::int64_t noUnit = -2147220988;

using Result = std::function<Minutes(const clsWorkTime&)>;

// The rule book: bands, enter, leave, kind of the next day, what is asked, minutes.
struct Rule {
    const char16_t* bands;
    const char16_t* enter;
    const char16_t* leave;
    int nextDayType;
    Result asked;
    int expected;
};

} // namespace

TEST(WorkTimeRules, StandAsInTheBook) {
    const Result work = &clsWorkTime::WorkTime;
    const Result over = &clsWorkTime::OverWork;
    const Result absent = &clsWorkTime::AbsentHour;
    for (const auto& [bands, enter, leave, next, asked, expected] : {
             Rule{u"Work 09:00-12:00 13:00-18:00", u"08:55", u"18:30", 0, work, 480},
             Rule{u"Work 09:00-12:00 - 13:00-18:00", u"08:55", u"18:30", 0, work, 180},
             Rule{u"Work 09:00-12:00", u"09:00", u"+10:00", 0, work, 240},
             Rule{u"Work 22:00-00:00", u"23:00", u"+01:00", 0, work, 60},
             Rule{u"Work 09:00-12:00", u"11:59:01", u"12:00", 0, work, 0},
             Rule{u"Work 09:00-12:00 13:00-18:00", u"11:59:30", u"13:00:30", 0, work, 1},
             Rule{u"Work 09:00-12:00", u"10:00", u"10:00", 0, work, 0},
             Rule{u"", u"09:00", u"18:00", 0, work, 0},
             Rule{u"LegalOver 17:30-18:00", u"09:00", u"17:45", 0, &clsWorkTime::LegalOverWork, 15},
             Rule{u"Late 22:00-00:00 00:00-05:00", u"18:00", u"+03:00", 0, &clsWorkTime::LateWork, 300},
             Rule{u"Over 18:00-22:00; AfterLate 05:00-09:00", u"18:00", u"+07:00", 0, over, 360},
             Rule{u"Over 18:00-22:00; AfterLate 05:00-09:00", u"18:00", u"+04:00", 0, over, 240},
             Rule{u"Over 18:00-22:00; AfterLate 05:00-09:00", u"18:00", u"+07:00", 5, over, 240},
             Rule{u"AfterLate 22:00-00:00", u"18:00", u"++01:00", 0, over, 120},
             Rule{u"HolidayAfterLate 05:00-08:00; AfterLate 05:00-09:00", u"18:00", u"+09:00", 1, over, 180},
             Rule{u"AmAfterLate 05:00-07:00", u"18:00", u"+09:00", 2, over, 120},
             Rule{u"PmHolidayAfterLate 05:00-06:00", u"18:00", u"+09:00", 3, over, 60},
             Rule{u"AmAfterLate 05:00-07:00", u"18:00", u"+09:00", 2, &clsWorkTime::AmOverWork, 120},
             Rule{u"AmAfterLate 05:00-07:00", u"18:00", u"+09:00", 2, &clsWorkTime::PmOverWork, 0},
             Rule{u"PmHolidayAfterLate 05:00-06:00", u"18:00", u"+09:00", 2, &clsWorkTime::PmOverWork, 60},
             Rule{u"PmHolidayOver 12:00-13:00 13:00-14:00 14:00-15:00 15:00-16:00", u"09:00", u"18:00", 0,
                  &clsWorkTime::PmOverWork, 240},
             Rule{u"Early 05:00-09:00", u"23:30", u"+06:00", 0, &clsWorkTime::EarlyWork, 0},
             Rule{u"Early 05:00-09:00", u"06:00", u"+06:00", 0, &clsWorkTime::EarlyWork, 180},
             Rule{u"AmHolidayEarly 05:00-09:00", u"23:30", u"+06:00", 0, &clsWorkTime::AmEarlyWork, 60},
             Rule{u"PmHolidayEarly 05:00-09:00", u"23:30", u"+06:00", 0, &clsWorkTime::PmEarlyWork, 60},
             Rule{u"AmHolidayLegalOver 17:30-18:00", u"13:00", u"18:00", 0, &clsWorkTime::AmLegalOverWork, 30},
             Rule{u"AmHolidayLate 22:00-00:00", u"13:00", u"23:00", 0, &clsWorkTime::AmLateWork, 60},
             Rule{u"PmHolidayLegalOver 12:00-13:00", u"09:00", u"12:30", 0, &clsWorkTime::PmLegalOverWork, 30},
             Rule{u"PmHolidayLate 22:00-00:00", u"09:00", u"23:00", 0, &clsWorkTime::PmLateWork, 60},
             Rule{u"AmHolidayWork 13:00-17:30", u"12:50", u"17:00", 0, &clsWorkTime::AmWorkTime, 240},
             Rule{u"PmHolidayWork 09:00-12:00", u"08:50", u"12:10", 0, &clsWorkTime::PmWorkTime, 180},
             Rule{u"HolidayWork 09:00-22:00; HolidayEarly 05:00-09:00", u"08:00", u"10:00", 0,
                  &clsWorkTime::HolidayWork, 120},
             Rule{u"HolidayLate 22:00-00:00", u"20:00", u"+02:00", 0, &clsWorkTime::HolidayLateWork, 120},
             Rule{u"HolidayLate 22:00-00:00 00:00-05:00", u"20:00", u"+02:00", 0, &clsWorkTime::HolidayLateWork, 240},
             Rule{u"Work 09:00-12:00 13:00-18:00", u"08:00", u"19:00", 0, absent, 0},
             Rule{u"Work 09:00-12:00 13:00-18:00", u"09:30", u"17:00:30", 0, absent, 89},
             Rule{u"Work 09:00-10:00", u"11:00", u"12:00", 0, absent, 60},
             Rule{u"Work 22:00-00:00", u"22:00", u"23:00", 0, absent, 60},
             Rule{u"AmHolidayWork 13:00-17:30", u"13:00", u"16:30", 0, &clsWorkTime::AmAbsentHour, 60},
             Rule{u"PmHolidayWork 09:00-12:00", u"10:00", u"12:00", 0, &clsWorkTime::PmAbsentHour, 60},
         })
        EXPECT_EQ(asked(stay(QString::fromUtf16(bands), QString::fromUtf16(enter), QString::fromUtf16(leave), next)),
                  Minutes(expected))
            << QString::fromUtf16(bands) << " " << QString::fromUtf16(enter) << " " << QString::fromUtf16(leave);
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
    const auto rounded = [](const QString& text, int direction, int unit) {
        return RoundPunch(time(text), direction, Minutes(unit));
    };
    EXPECT_EQ(rounded(u"10:59"_q, 0, 7), time(u"10:56"_q));
    EXPECT_EQ(rounded(u"11:03"_q, 0, 7), time(u"11:00"_q));
    EXPECT_EQ(rounded(u"10:40"_q, 0, 90), time(u"10:00"_q));
    EXPECT_EQ(rounded(u"10:40"_q, 1, 90), time(u"11:30"_q));
    EXPECT_EQ(rounded(u"09:30"_q, 1, 30), time(u"09:30"_q));
    EXPECT_EQ(rounded(u"09:30:01"_q, 1, 30), time(u"10:00"_q));
    EXPECT_EQ(rounded(u"23:50"_q, 1, 30), time(u"+00:00"_q));
    EXPECT_EQ(rounded(u"23:50:59"_q, 2, 30), time(u"23:50:59"_q));

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
    EXPECT_EQ(late.LateEnter(), Count(1));
    EXPECT_EQ(late.EarlyLeave(), Count(1));
    EXPECT_EQ(late.AbsentHour(), 30min) << "rounding changes absence, not the record of lateness";
    const clsWorkTime punctual = stay(rules, u"09:00"_q, u"18:00"_q);
    EXPECT_EQ(punctual.LateEnter() + punctual.EarlyLeave(), Count(0));
    EXPECT_EQ(stay(rules, u"13:01"_q, u"18:00"_q).AmLateEnter(), Count(1));
    EXPECT_EQ(stay(rules, u"09:00"_q, u"11:59"_q).PmEarlyLeave(), Count(1));
    EXPECT_EQ(stay(rules, u"13:01"_q, u"+07:00"_q).EarlyLeave(), Count(0)) << "the enter's date counts";
    EXPECT_EQ(stay(u"Work 15:00-00:00"_q, u"15:00"_q, u"16:00"_q).EarlyLeave(), Count(0))
        << "no leave is before midnight";
    EXPECT_EQ(stay(u""_q, u"15:00"_q, u"16:00"_q).LateEnter() + stay(u""_q, u"15:00"_q, u"16:00"_q).EarlyLeave(),
              Count(0));
}

TEST(WorkTime, TheBorderFollowsTheNextDay) {
    clsWorkTime rules =
        rulesOf(u"Work 09:00-12:00; Flex 07:00-10:00; HolidayWork 08:00-12:00; AmHolidayWork 13:00-17:00; "
                "AmHolidayFlex 12:00-13:00; PmHolidayWork 09:30-12:00; PmHolidayFlex 06:30-09:00"_q);
    const auto border = [&rules](int type) {
        rules.plngNextDayType(type);
        return rules.borderTime() / 1min;
    };
    EXPECT_EQ(border(0), 9 * 60);
    EXPECT_EQ(border(1), 8 * 60);
    EXPECT_EQ(border(2), 13 * 60);
    EXPECT_EQ(border(3), 9 * 60 + 30);
    EXPECT_EQ(border(4), 9 * 60 + 30) << "other values leave it";
    rules.pbleFlexTime = rules.pbleAmFlexTime = rules.pblePmFlexTime = true;
    EXPECT_EQ(border(0), 7 * 60);
    EXPECT_EQ(border(2), 12 * 60);
    EXPECT_EQ(border(3), 6 * 60 + 30);
}

TEST(WorkTime, SettersRefuseWithTheirTexts) {
    clsWorkTime rules = rulesOf(u"Work 09:00-12:00"_q);
    const auto set = [&rules](const QString& property, int index, const QString& text) {
        return [&rules, property, index, text] { rules.setBand(property, index, text); };
    };
    EXPECT_EQ(failure(set(u"pstrStartWork"_q, 4, u"09:00"_q), u"インデックスが有効範囲にありません。"_q), noIndex);
    EXPECT_EQ(failure(set(u"pstrStartWork"_q, -1, u"09:00"_q), u"インデックスが有効範囲にありません。"_q), 9);
    EXPECT_EQ(failure(set(u"pstrStartWork"_q, 0, u"24:00"_q), u"勤務開始時刻に時間以外の値が設定されています。"_q),
              noTime);
    EXPECT_EQ(failure(set(u"pstrEndAmAfterLate"_q, 0, u"9:00"_q),
                      u"午前休日明け残業終了時刻に時間以外の値が設定されています。"_q),
              noTime);
    EXPECT_EQ(failure(set(u"pstrEndWork"_q, 0, u"09:00"_q), u"勤務終了時刻が開始時刻より前に設定されています。"_q),
              badOrder);
    rules.setBand(u"pstrStartHolidayEarly"_q, 0, u"05:00"_q);
    EXPECT_EQ(failure(set(u"pstrEndHolidayEarly"_q, 0, u"05:00"_q),
                      u"休日早出終了時刻が休日早出開始時刻より前に設定されています。"_q),
              badOrder);
    rules.setBand(u"pstrEndHolidayEarly"_q, 0, u"00:00"_q);
    EXPECT_EQ(rules.bands(DayType::Weekday, BandKind::Work).at(0).end, 12h) << "the old value stays";

    EXPECT_EQ(failure([&] { rules.pstrAmStandardTime(u"8:00"); },
                      u"午前休日時の標準労働時間に時間以外の値が設定されています。"_q),
              noTime);
    EXPECT_EQ(rules.plngAmStandardTime(), 240min);
    rules.pstrStandardTime(u"07:45");
    EXPECT_EQ(rules.plngStandardTime(), 465min);
    EXPECT_EQ(failure([&] { rules.plngRoundUnit(0min); }, u"端数処理単位が設定されていません。"_q), noUnit);
    for (const int closeDay : {28, 29, 30, 0, 32})
        EXPECT_EQ(failure([&] { rules.plngCloseDay(closeDay); }, u"タイムカード締日に不正な日付が設定されています。"_q),
                  noTime);
    rules.plngCloseDay(27);
    EXPECT_EQ(rules.plngCloseDay(), 27);
    EXPECT_EQ(rules.plngRoundUnit(), 30min);

    EXPECT_EQ(failure([&] { rules.pdtmEnter({}); }, u"出社時刻に時間以外の値が設定されています。"_q), noTime);
    rules.pdtmEnter(time(u"10:00"_q));
    EXPECT_EQ(failure([&] { rules.pdtmLeave({}); }, u"退社時刻に時間以外の値が設定されています。"_q), noTime);
    EXPECT_EQ(failure([&] { rules.pdtmLeave(time(u"09:59:59"_q)); }, u"退社時刻が出社時刻より前に設定されています。"_q),
              badOrder);
}

TEST(WorkTime, AllBandPropertiesAreTheirOwn) {
    int known = 0;
    for (std::size_t dayType = 0; dayType < dayTypeCount; ++dayType)
        for (std::size_t kind = 0; kind < bandKindCount; ++kind) {
            const auto* property = bandProperty(static_cast<DayType>(dayType), static_cast<BandKind>(kind));
            if (!property) continue;
            ++known;
            EXPECT_EQ(bandPropertyNamed(u"pstrEnd"_q + QString::fromUtf16(property->suffix)), property);
        }
    EXPECT_EQ(known, 28);
    EXPECT_EQ(bandPropertyNamed(u"pstrStartHolidayCore"), nullptr);
}

} // namespace kurbo::test
