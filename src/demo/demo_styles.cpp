#include "demo/demo_styles.h"

namespace kurbo {
namespace {

constexpr WorkBand from(int startHour, int startMinute, int endHour, int endMinute) {
    return {.start = startHour * 60 + startMinute, .end = endHour * 60 + endMinute};
}

constexpr WorkBand hours(int start, int end) {
    return {.start = start * 60, .end = end * 60};
}

constexpr WorkBands lateNight{hours(22, 24), hours(0, 5)};

// A band lies within one day, and the day's absence is measured from the first band's start to the last one's end: so
// the night shift's own hours end before midnight, and what it works beyond is late-night work.
constexpr std::array fixedStyles{
    Style{.name = u"日勤 9:00-17:30",
          .work = {hours(9, 12), from(13, 0, 17, 30)},
          .flex = {},
          .legalOver = {from(17, 30, 18, 0)},
          .over = {hours(18, 22)},
          .late = lateNight,
          .afterLate = {hours(5, 9)},
          .early = {hours(5, 9)}},
    Style{.name = u"休日 日勤",
          .work = {hours(9, 12), hours(13, 22)},
          .flex = {},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 9)},
          .early = {hours(5, 9)}},
    Style{.name = u"午前休 日勤 13:00-17:30",
          .work = {from(13, 0, 17, 30)},
          .flex = {},
          .legalOver = {from(17, 30, 21, 0)},
          .over = {hours(21, 22)},
          .late = lateNight,
          .afterLate = {hours(5, 13)},
          .early = {hours(5, 9), hours(9, 12)}},
    Style{.name = u"午後休 日勤 9:00-12:00",
          .work = {hours(9, 12)},
          .flex = {},
          .legalOver = {hours(13, 18)},
          .over = {hours(18, 22)},
          .late = lateNight,
          .afterLate = {hours(5, 9)},
          .early = {hours(5, 9)}},
    Style{.name = u"夜勤 15:00-23:45",
          .work = {hours(15, 19), from(19, 45, 23, 45)},
          .flex = {},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 15)},
          .early = {hours(9, 15)}},
    Style{.name = u"休日 夜勤",
          .work = {hours(15, 19), from(19, 45, 22, 0)},
          .flex = {},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 15)},
          .early = {hours(9, 15)}},
    Style{.name = u"前半休 夜勤 19:45-23:45",
          .work = {from(19, 45, 23, 45)},
          .flex = {},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {from(5, 0, 19, 45)},
          .early = {hours(9, 19)}},
    Style{.name = u"後半休 夜勤 15:00-19:00",
          .work = {hours(15, 19)},
          .flex = {},
          .legalOver = {from(19, 45, 22, 0)},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 15)},
          .early = {hours(9, 15)}},
};

constexpr std::array flexibleStyles{
    Style{.name = u"ﾌﾚｯｸｽ コア10:00-15:00",
          .work = {hours(10, 12), hours(13, 15)},
          .flex = {hours(7, 10), hours(15, 22)},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 7)},
          .early = {hours(5, 7)}},
    fixedStyles[1],
    Style{.name = u"午前休 ﾌﾚｯｸｽ",
          .work = {hours(13, 15)},
          .flex = {hours(12, 13), hours(15, 22)},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 12)},
          .early = {hours(5, 12)}},
    Style{.name = u"午後休 ﾌﾚｯｸｽ",
          .work = {hours(10, 12)},
          .flex = {hours(7, 10), hours(12, 13)},
          .legalOver = {},
          .over = {hours(13, 22)},
          .late = lateNight,
          .afterLate = {hours(5, 7)},
          .early = {hours(5, 7)}},
    Style{.name = u"夜勤 ﾌﾚｯｸｽ コア17:00-22:00",
          .work = {hours(17, 19), hours(20, 22)},
          .flex = {hours(15, 17), hours(22, 24)},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 15)},
          .early = {hours(9, 15)}},
    fixedStyles[5],
    Style{.name = u"前半休 夜勤 ﾌﾚｯｸｽ",
          .work = {hours(20, 22)},
          .flex = {hours(19, 20), hours(22, 24)},
          .legalOver = {},
          .over = {},
          .late = lateNight,
          .afterLate = {hours(5, 19)},
          .early = {hours(9, 19)}},
    Style{.name = u"後半休 夜勤 ﾌﾚｯｸｽ",
          .work = {hours(17, 19)},
          .flex = {hours(15, 17), hours(19, 20)},
          .legalOver = {},
          .over = {hours(20, 22)},
          .late = lateNight,
          .afterLate = {hours(5, 15)},
          .early = {hours(9, 15)}},
};

constexpr int at(int hour, int minute = 0) {
    return hour * 60 + minute;
}

constexpr ShiftTimes fixedDay{.start = at(9),
                              .end = at(17, 30),
                              .earliest = 0,
                              .coreStart = at(9),
                              .coreEnd = at(17, 30),
                              .secondHalf = at(13),
                              .firstEnd = at(12)};
constexpr ShiftTimes fixedNight{.start = at(15),
                                .end = at(23, 45),
                                .earliest = 0,
                                .coreStart = at(15),
                                .coreEnd = at(23, 45),
                                .secondHalf = at(19, 45),
                                .firstEnd = at(19)};
constexpr ShiftTimes flexibleDay{.start = at(9),
                                 .end = at(18),
                                 .earliest = 75,
                                 .coreStart = at(10),
                                 .coreEnd = at(15),
                                 .secondHalf = at(13),
                                 .firstEnd = at(12)};
constexpr ShiftTimes flexibleNight{.start = at(15, 15),
                                   .end = at(24),
                                   .earliest = 0,
                                   .coreStart = at(17),
                                   .coreEnd = at(22),
                                   .secondHalf = at(20),
                                   .firstEnd = at(19)};

} // namespace

const Style& styleOf(bool flexible, Shift shift, DayKind kind) {
    const auto& styles = flexible ? flexibleStyles : fixedStyles;
    return styles[static_cast<std::size_t>(kind) + (shift == Shift::Nights ? 4 : 0)];
}

const ShiftTimes& timesOf(bool flexible, Shift shift) {
    if (flexible) return shift == Shift::Days ? flexibleDay : flexibleNight;
    return shift == Shift::Days ? fixedDay : fixedNight;
}

const Limits& limitsOf(Adjust adjust) {
    // The usual agreement on overtime: 45 hours a month. It leaves late-night hours alone, which the night shift has.
    static const Limits agreement{.over = 45 * 60, .early = 20 * 60, .holiday = 32 * 60};
    static const Limits unlimited{};
    return adjust == Adjust::Agreement ? agreement : unlimited;
}

} // namespace kurbo
