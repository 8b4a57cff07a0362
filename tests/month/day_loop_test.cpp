#include "month/day_loop.h"

#include "month/quantities.h"
#include "support/desk.h"
#include "support/table.h"

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

// What isn't 0 of a day, under the names of its fields.
QString text(const Figures& day) {
    QString words;
    const auto add = [&words](const QString& name, int amount) {
        if (amount != 0) words += u" %1 %2"_q.arg(name).arg(amount);
    };
    forEachOfDay([&](const QuantityFacts& facts, auto member) {
        add(QString::fromUtf16(facts.field).mid(2), (day.*member).count());
    });
    add(u"Diff"_q, day.difference.count());
    return words.mid(1);
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

// A company's rule for half holidays, the days, and the figures of each.
TEST_F(DayLoop, FiguresOfDays) {
    for (const QStringList& row : rowsOf(R"(
  | - 08:00 23:00                        | WorkDay 1 Work 450 LegalOver 30 Over 240 Late 60 Early 60
  | - 09:30 17:00                        | WorkDay 1 Work 390 Absent 60 LateEnter 1 EarlyLeave 1
  | - 18:00 20:00                        | Over 120 Absent 450 AbsentDay 1
  | 0 20:00 23:00                        | WorkDay 1 Holiday 120 HolidayLate 60
  | 3 20:00 23:00                        | WorkDay 1 LegalHoliday 120 LegalLate 60
  | 9 20:00 23:00                        | WorkDay 1 LegalHoliday 120 LegalLate 60
  | 0 - -                                |
1 | 1 10:00 23:00                        | WorkDay 1 Work 270 LegalOver 30 Over 240 Late 60 Early 180
2 | 1 10:00 23:00                        | WorkDay 1 Work 270 LegalOver 30 Over 240 Late 60 Holiday 180
3 | 1 10:00 23:00                        | WorkDay 1 Work 270 LegalOver 30 Over 240 Late 60
1 | 2 08:00 23:00                        | WorkDay 1 Work 180 LegalOver 60 Over 540 Late 60 Early 60
2 | 2 08:00 23:00                        | WorkDay 1 Work 180 LegalOver 60 Early 60 Holiday 540 HolidayLate 60
3 | 2 08:00 23:00                        | WorkDay 1 Work 180 LegalOver 60 Early 60
  | - 09:00 17:30 0--                    | Paid 2
  | - 10:00 23:00 -1-                    | WorkDay 1 Work 270 LegalOver 30 Over 240 Late 60 Special 1
  | - 08:00 23:00 --2                    | WorkDay 1 Work 180 Early 60 Compens 1
  | 3 - - 0--                            | Paid 2
  | 0 20:00 23:00 --0                    | Compens 2
  | - - - 1--                            | Absent 270 Paid 1 AbsentDay 1
  | - - - -2-                            | Absent 180 Special 1 AbsentDay 1
  | - - - --1                            | Absent 270 Compens 1 AbsentDay 1
  | - - - 01-                            | Paid 2
  | - - - 210                            | Absent 180 Paid 1 AbsentDay 1
  | - - -                                | Absent 450 AbsentDay 1
  | - 09:00 -                            |
  | - - 17:00                            |
  | - 09:00 +10:00, - - -, - - - | WorkDay 1 Work 450 LegalOver 30 Over 480 Late 120, WorkDay 1 Work 60 Absent 390 EarlyLeave 1, Absent 450 AbsentDay 1
  | - 09:00 +10:00, - 13:00 17:30, - - - | WorkDay 1 Work 450 LegalOver 30 Over 480 Late 120, WorkDay 1 Work 270 Absent 180 LateEnter 1, Absent 450 AbsentDay 1
  | - 09:00 ++10:00, 0 - -, - - - | WorkDay 1 Work 450 LegalOver 30 Over 240 Late 120, WorkDay 1 Holiday 900 HolidayLate 120, WorkDay 1 Work 60 Absent 390 EarlyLeave 1
  | - 09:00 +10:00, - - - 0--, - - - | WorkDay 1 Work 450 LegalOver 30 Over 480 Late 120, Paid 2, Absent 450 AbsentDay 1
)")) {
        rules.plngAmHolidayWork = rules.plngPmHolidayWork = row[0].isEmpty() ? 1 : row[0].toInt();
        QStringList figures;
        for (const Figures& day : card(row[1]).days) figures.append(text(day));
        EXPECT_EQ(figures.join(u", "_q), row[2]) << row[1];
    }
}

TEST_F(DayLoop, SwitchesDecideWhatIsAsked) {
    rules.pbleEnableOver = rules.pbleEnableLate = rules.pbleEnableEarly = rules.pbleEnableLegalOver = false;
    EXPECT_EQ(text(first(u"- 08:00 23:00"_q)), u"WorkDay 1 Work 450"_q);
    rules.pbleEnableHolidayLate = false;
    EXPECT_EQ(text(first(u"3 20:00 23:00"_q)), u"WorkDay 1 LegalHoliday 120"_q)
        << "under the ordinary holiday's switch";
    rules.pbleEnableHoliday = false;
    EXPECT_EQ(first(u"3 20:00 23:00"_q), Figures());
}

TEST_F(DayLoop, AbsenceIsThePastsOnly) {
    setBand(u"AmHolidayWork", 0, u"13:00", u"19:00");
    EXPECT_EQ(first(u"1 - -"_q).absent, 270min) << "no more than the weekday's business hours";
    today = monday;
    EXPECT_EQ(first(u"- - -"_q), Figures());
    today = monday + std::chrono::days(1);
    EXPECT_EQ(first(u"- - -"_q).absentDays, Count(1));
    EXPECT_EQ(card(u"- - -"_q, {}, at(monday, 10, 0)).days[0].work, 60min) << "a shift goes on";
    clsWorkTime evening;
    evening.plngRoundMethod = 1;
    evening.setBand(u"pstrStartWork", 0, u"15:00");
    evening.setBand(u"pstrEndWork", 0, u"00:00");
    rules = evening;
    EXPECT_EQ(first(u"- - -"_q).absent, 540min) << "business hours end with the day";
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
    EXPECT_EQ(text(first(u"- 09:00 18:30"_q)), u"WorkDay 1 Work 570 Over 30 Diff 90"_q) << "no legal overtime";
    EXPECT_EQ(card(u"- 09:00 18:30, - 10:00 17:00"_q).sum.difference, 30min);
    EXPECT_EQ(first(u"- 22:00 23:00"_q).difference, 0min) << "no working time, no difference";
    EXPECT_THROW((void)card(u"- 17:00 09:00"_q), Fault) << "a stored row that the rules refuse";
}

} // namespace kurbo::test
