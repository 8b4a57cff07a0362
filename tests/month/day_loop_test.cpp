#include "month/day_loop.h"

#include "base/failure.h"
#include "support/desk.h"

namespace kurbo::test {
namespace {

const Day monday = *makeDay(2026, 4, 13);

// "09:00" on the day itself, "+02:00" on the next; nothing for "-".
std::optional<Moment> time(Day day, const QString& text) {
    if (text == u"-") return {};
    const auto later = std::chrono::days(text.count(u'+'));
    const QString clock = text.mid(later.count());
    return at(day + later, clock.left(2).toInt(), clock.mid(3, 2).toInt());
}

// Days from Monday on, each "type enter leave leaves": type and the three leaves as codes, "-" for none.
std::vector<DayFacts> week(const QString& text) {
    const auto code = [](QChar c) { return c == u'-' ? QChar() : c; };
    std::vector<DayFacts> days;
    Day date = monday;
    for (const QString& day : text.split(u',')) {
        const QStringList words = day.trimmed().split(u' ');
        const QString leaves = words.value(3, u"---"_q);
        days.push_back({date, code(words[0][0]), time(date, words[1]), time(date, words[2]), code(leaves[0]),
                        code(leaves[1]), code(leaves[2])});
        date += std::chrono::days(1);
    }
    return days;
}

class DayLoop : public ::testing::Test {
  protected:
    DayLoop() {
        rules.plngRoundMethod = 1;
        rules.pbleEnableLegalOver = true;
        for (const auto& [name, start, end] : {
                 std::tuple{u"Work", u"09:00", u"12:00"},
                 {u"LegalOver", u"17:30", u"18:00"},
                 {u"Over", u"18:00", u"22:00"},
                 {u"Late", u"22:00", u"00:00"},
                 {u"AfterLate", u"05:00", u"09:00"},
                 {u"Early", u"05:00", u"09:00"},
                 {u"HolidayWork", u"08:00", u"22:00"},
                 {u"HolidayLate", u"22:00", u"00:00"},
                 {u"AmHolidayWork", u"13:00", u"17:30"},
                 {u"AmHolidayOver", u"18:00", u"22:00"},
                 {u"AmHolidayLate", u"22:00", u"00:00"},
                 {u"AmHolidayEarly", u"09:00", u"13:00"},
                 {u"AmHolidayLegalOver", u"17:30", u"18:00"},
                 {u"PmHolidayWork", u"09:00", u"12:00"},
                 {u"PmHolidayOver", u"13:00", u"22:00"},
                 {u"PmHolidayLate", u"22:00", u"00:00"},
                 {u"PmHolidayEarly", u"05:00", u"09:00"},
                 {u"PmHolidayLegalOver", u"12:00", u"13:00"},
             })
            setBand(name, 0, start, end);
        setBand(u"Work", 1, u"13:00", u"17:30");
    }
    void setBand(QStringView name, int index, QStringView start, QStringView end) {
        rules.setBand(u"pstrStart"_q + name.toString(), index, start);
        rules.setBand(u"pstrEnd"_q + name.toString(), index, end);
    }
    CardFigures card(const QString& days, QChar next = {}, std::optional<Moment> carry = {}) {
        const std::vector<DayFacts> facts = week(days);
        return calculateDays(rules, facts, next, carry, today);
    }
    Figures first(const QString& days) { return card(days).days.front(); }

    clsWorkTime rules;
    Day today = *makeDay(2026, 5, 1);
};

} // namespace

TEST_F(DayLoop, CodesOfDays) {
    for (const auto& [day, code] : {std::pair{u"- - -"_q, DayCode::WD},
                                    {u"0 - -"_q, DayCode::OH},
                                    {u"1 - -"_q, DayCode::OA},
                                    {u"2 - -"_q, DayCode::OP},
                                    {u"3 - -"_q, DayCode::LH},
                                    {u"9 - -"_q, DayCode::LH},
                                    {u"3 - - 0--"_q, DayCode::PH},
                                    {u"- - - 1--"_q, DayCode::PA},
                                    {u"- - - 2--"_q, DayCode::PP},
                                    {u"- - - -0-"_q, DayCode::SH},
                                    {u"- - - -1-"_q, DayCode::SA},
                                    {u"- - - -2-"_q, DayCode::SP},
                                    {u"0 - - --0"_q, DayCode::CH},
                                    {u"- - - --1"_q, DayCode::CA},
                                    {u"- - - --2"_q, DayCode::CP},
                                    {u"- - - 210"_q, DayCode::PP}})
        EXPECT_EQ(dayCodeOf(week(day).front()), code) << day;
}

TEST_F(DayLoop, AWorkingDay) {
    const Figures day = first(u"- 08:00 23:00, - - -"_q);
    EXPECT_EQ(day.work, 450min);
    EXPECT_EQ(day.workDays, Count(1));
    EXPECT_EQ(day.early, 60min);
    EXPECT_EQ(day.legalOver, 30min);
    EXPECT_EQ(day.over, 240min);
    EXPECT_EQ(day.late, 60min);
    EXPECT_EQ(day.absent, 0min);
    EXPECT_EQ(day.absentDays + day.lateEnters + day.earlyLeaves, Count(0));
    const Figures late = first(u"- 09:30 17:00"_q);
    EXPECT_EQ(late.absent, 60min);
    EXPECT_EQ(late.lateEnters, Count(1));
    EXPECT_EQ(late.earlyLeaves, Count(1));
    const Figures outside = first(u"- 18:00 20:00"_q);
    EXPECT_EQ(outside.absentDays, Count(1)) << "punches outside every band are an absence";
    EXPECT_EQ(outside.workDays + outside.lateEnters, Count(0));
    EXPECT_EQ(outside.over, 120min);
    EXPECT_EQ(outside.absent, 450min);
}

TEST_F(DayLoop, SwitchesDecideWhatIsAsked) {
    rules.pbleEnableOver = rules.pbleEnableLate = rules.pbleEnableEarly = rules.pbleEnableLegalOver = false;
    const Figures day = first(u"- 08:00 23:00"_q);
    EXPECT_EQ(day.over + day.late + day.early + day.legalOver, 0min);
    EXPECT_EQ(day.work, 450min);
    rules.pbleEnableHolidayLate = false;
    EXPECT_EQ(first(u"3 20:00 23:00"_q).legalHoliday, 120min);
    EXPECT_EQ(first(u"3 20:00 23:00"_q).legalLate, 0min) << "under the ordinary holiday's switch";
    rules.pbleEnableHoliday = false;
    EXPECT_EQ(first(u"3 20:00 23:00"_q), Figures());
}

TEST_F(DayLoop, Holidays) {
    const Figures ordinary = first(u"0 20:00 23:00"_q);
    EXPECT_EQ(ordinary.holiday, 120min);
    EXPECT_EQ(ordinary.holidayLate, 60min);
    EXPECT_EQ(ordinary.workDays, Count(1)) << "once, also when both count";
    EXPECT_EQ(ordinary.work, 0min);
    const Figures legal = first(u"3 20:00 23:00"_q);
    EXPECT_EQ(legal.legalHoliday, 120min);
    EXPECT_EQ(legal.legalLate, 60min);
    EXPECT_EQ(first(u"0 - -"_q), Figures()) << "no absence on a holiday";
}

TEST_F(DayLoop, HalfHolidays) {
    const QString am = u"1 10:00 23:00"_q;
    EXPECT_EQ(first(am).work, 270min);
    EXPECT_EQ(first(am).early, 180min) << "counted as early work";
    EXPECT_EQ(first(am).over, 240min);
    rules.plngAmHolidayWork = 2;
    EXPECT_EQ(first(am).holiday, 180min);
    EXPECT_EQ(first(am).early, 0min);
    rules.plngAmHolidayWork = 3;
    EXPECT_EQ(first(am).holiday + first(am).early, 0min);

    const QString pm = u"2 08:00 23:00"_q;
    EXPECT_EQ(first(pm).work, 180min);
    EXPECT_EQ(first(pm).early, 60min);
    EXPECT_EQ(first(pm).legalOver, 60min);
    EXPECT_EQ(first(pm).over, 540min);
    EXPECT_EQ(first(pm).late, 60min);
    rules.plngPmHolidayWork = 2;
    EXPECT_EQ(first(pm).holiday, 540min);
    EXPECT_EQ(first(pm).holidayLate, 60min);
    EXPECT_EQ(first(pm).over + first(pm).late, 0min);
    rules.plngPmHolidayWork = 3;
    EXPECT_EQ(first(pm).over + first(pm).holiday, 0min);
}

TEST_F(DayLoop, Leaves) {
    const Figures whole = first(u"- 09:00 17:30 0--"_q);
    EXPECT_EQ(whole.paid, HalfDays(2));
    EXPECT_EQ(whole.workDays, Count(0)) << "the punches of a whole day's leave are ignored";
    const Figures morning = first(u"- 10:00 23:00 -1-"_q);
    EXPECT_EQ(morning.special, HalfDays(1));
    EXPECT_EQ(morning.work, 270min);
    EXPECT_EQ(morning.early, 0min) << "no early work behind a morning's leave";
    EXPECT_EQ(morning.over, 240min);
    EXPECT_EQ(morning.late, 60min);
    const Figures afternoon = first(u"- 08:00 23:00 --2"_q);
    EXPECT_EQ(afternoon.compens, HalfDays(1));
    EXPECT_EQ(afternoon.early, 60min);
    EXPECT_EQ(afternoon.legalOver + afternoon.over + afternoon.late, 0min) << "no overtime behind an afternoon's leave";
    const Figures two = first(u"- - - 01-"_q);
    EXPECT_EQ(two.paid, HalfDays(2));
    EXPECT_EQ(two.special, HalfDays(0)) << "the first leave alone counts";
}

TEST_F(DayLoop, AbsenceIsThePastsOnly) {
    EXPECT_EQ(first(u"- - -"_q).absent, 450min);
    EXPECT_EQ(first(u"- - -"_q).absentDays, Count(1));
    setBand(u"AmHolidayWork", 0, u"13:00", u"19:00");
    setBand(u"PmHolidayWork", 0, u"08:00", u"12:00");
    EXPECT_EQ(first(u"1 - -"_q).absent, 270min) << "no more than the weekday's business hours";
    EXPECT_EQ(first(u"- - - 2--"_q).absent, 180min);
    EXPECT_EQ(first(u"- 09:00 -"_q), Figures()) << "half a stay shows nothing";
    EXPECT_EQ(first(u"- - 17:00"_q), Figures());
    today = monday;
    EXPECT_EQ(first(u"- - -"_q), Figures());
    today = monday + std::chrono::days(1);
    EXPECT_EQ(first(u"- - -"_q).absentDays, Count(1));
    clsWorkTime evening;
    evening.plngRoundMethod = 1;
    evening.setBand(u"pstrStartWork", 0, u"15:00");
    evening.setBand(u"pstrEndWork", 0, u"00:00");
    rules = evening;
    EXPECT_EQ(first(u"- - -"_q).absent, 540min) << "business hours end with the day";
}

TEST_F(DayLoop, AShiftIsCutWhereTheNextDayBegins) {
    const CardFigures days = card(u"- 09:00 +10:00, - - -, - - -"_q);
    EXPECT_EQ(days.days[0].work, 450min);
    EXPECT_EQ(days.days[0].over, 480min) << "the evening, and the morning behind it";
    EXPECT_EQ(days.days[1].work, 60min) << "09:00 to 10:00 on the next row";
    EXPECT_EQ(days.days[1].absent, 390min);
    EXPECT_EQ(days.days[1].absentDays, Count(0));
    EXPECT_EQ(days.days[2].absentDays, Count(1)) << "the carry is used up";
    EXPECT_EQ(days.sum.work, 510min);

    const CardFigures punched = card(u"- 09:00 +10:00, - 13:00 17:30, - - -"_q);
    EXPECT_EQ(punched.days[1].work, 270min) << "a punched row ignores the carry";
    EXPECT_EQ(punched.days[2].absentDays, Count(1));
}

TEST_F(DayLoop, ACarryReachesOverSeveralDaysAndKinds) {
    const CardFigures days = card(u"- 09:00 ++10:00, 0 - -, - - -"_q);
    EXPECT_EQ(days.days[0].work, 450min);
    EXPECT_EQ(days.days[1].holiday, Minutes(15 * 60))
        << "from the holiday's own start at 08:00 to the next day's at 09:00";
    EXPECT_EQ(days.days[1].holidayLate, 120min);
    EXPECT_EQ(days.days[2].work, 60min);
    const CardFigures spent = card(u"- 09:00 +10:00, - - - 0--, - - -"_q);
    EXPECT_EQ(spent.days[1].work, 0min);
    EXPECT_EQ(spent.days[2].absentDays, Count(1)) << "a carry that ended before the day is spent";
    EXPECT_EQ(spent.days[2].absent, 450min);
    EXPECT_EQ(card(u"- - -"_q, {}, at(monday, 10, 0)).days[0].work, 60min) << "into the first row";
}

// A shift cut at the border and its continuation are the shift in one piece.
TEST_F(DayLoop, NothingIsLostAtTheBorder) {
    setBand(u"Late", 1, u"00:00", u"05:00");
    for (const QString& leave : {u"+05:30"_q, u"+08:59"_q, u"+09:00"_q, u"+09:01"_q, u"+17:30"_q}) {
        const CardFigures days = card(u"- 18:00 "_q + leave + u", - - -"_q);
        rules.pdtmEnter(time(monday, u"18:00"_q));
        rules.pdtmLeave(time(monday, leave));
        rules.plngNextDayType(0);
        EXPECT_EQ(days.sum.late, rules.LateWork()) << leave;
        EXPECT_EQ(days.sum.work, rules.WorkTime()) << leave;
        EXPECT_EQ(days.sum.over, rules.OverWork()) << leave;
    }
}

TEST_F(DayLoop, FlexibleDaysShowTheDifference) {
    rules.pbleFlexTime = true;
    setBand(u"Core", 0, u"10:00", u"15:00");
    setBand(u"Flex", 0, u"07:00", u"10:00");
    setBand(u"Flex", 1, u"15:00", u"22:00");
    const Figures day = first(u"- 09:00 18:30"_q);
    EXPECT_EQ(day.work, 570min);
    EXPECT_EQ(day.difference, 90min);
    EXPECT_EQ(day.legalOver, 0min) << "not on flexible days";
    EXPECT_EQ(first(u"- 10:00 17:00"_q).difference, -60min);
    EXPECT_EQ(card(u"- 09:00 18:30, - 10:00 17:00"_q).sum.difference, 30min);
    EXPECT_EQ(first(u"- 22:00 23:00"_q).difference, 0min) << "no working time, no difference";
}

TEST_F(DayLoop, AStoredRowThatTheRulesRefuseEndsTheCard) {
    EXPECT_THROW((void)card(u"- 17:00 09:00"_q), Fault);
}

} // namespace kurbo::test
