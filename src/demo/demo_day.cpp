#include "demo/demo_day.h"

#include <array>
#include <utility>

using namespace std::chrono;

namespace kurbo {
namespace {

constexpr int midnight = 86'400;

DayCard noRow() {
    DayCard card;
    card.exists = false;
    return card;
}

DayCard leaveDay(char DayCard::*kind, const QString& plan) {
    DayCard card;
    card.*kind = '0';
    card.plan = plan;
    return card;
}

} // namespace

DayDealer::DayDealer(bool flexible, Dice& dice)
    : flexible_(flexible),
      dice_(dice),
      events_({{Event::Plain, 190},
               {Event::ShortOver, 90},
               {Event::LongOver, 40},
               {Event::LateNight, 5},
               {Event::AllNight, 1},
               {Event::EarlyStart, 12},
               {Event::LateEnter, 5},
               {Event::EarlyLeave, 4},
               {Event::PaidDay, 12},
               {Event::PaidMorning, 4},
               {Event::PaidAfternoon, 4},
               {Event::Condolence, 1},
               {Event::NoRow, 1},
               {Event::EmptyRow, 1},
               {Event::NoLeave, 2},
               {Event::NoEnter, 2}}),
      saturdays_({{FreeDay::Rest, 57}, {FreeDay::Whole, 2}, {FreeDay::Morning, 1}}),
      sundays_({{FreeDay::Rest, 89}, {FreeDay::Whole, 1}}),
      ahead_({{Ahead::Nothing, 57}, {Ahead::Leave, 2}, {Ahead::Note, 1}}),
      trips_({{Trip::None, 24}, {Trip::One, 10}, {Trip::Two, 3}, {Trip::Open, 2}, {Trip::OnlyIn, 1}}) {}

DayCard DayDealer::past(Habits& habits, const CalendarDay& day, bool last) {
    DayCard card = day.off == DayOff::None        ? workday(habits, day, last)
                   : day.off == DayOff::Afternoon ? cleaningDay(habits)
                                                  : freeDay(habits, day);
    if (last && card.leave >= midnight) card.leave.reset();
    return card;
}

DayCard DayDealer::coming(const CalendarDay& day) {
    const Ahead ahead = day.off == DayOff::None ? ahead_.draw(dice_) : Ahead::Nothing;
    if (ahead == Ahead::Nothing) return noRow();
    if (ahead == Ahead::Leave) return leaveDay(&DayCard::paid, QStringLiteral("有休予定"));
    DayCard card;
    card.plan = note();
    return card;
}

DayCard DayDealer::workday(Habits& habits, const CalendarDay& day, bool last) {
    if (last && habits.shift == Shift::Nights) return presentDay(Event::Plain, habits);
    if (std::exchange(habits.workedAllNight, false)) {
        DayCard card = presentDay(Event::PaidMorning, habits);
        card.plan = QStringLiteral("徹夜明け");
        return card;
    }
    if (habits.owedHalves > 0 && dice_.oneIn(6)) return compensation(habits);
    if (summerLeave(habits, day)) return leaveDay(&DayCard::special, QStringLiteral("夏季休暇"));
    switch (const Event event = eventFor(habits)) {
    case Event::NoRow:
        return noRow();
    case Event::EmptyRow: {
        DayCard card;
        card.plan = QStringLiteral("体調不良の連絡あり");
        return card;
    }
    case Event::PaidDay:
        return leaveDay(&DayCard::paid, dice_.oneIn(3) ? QStringLiteral("私用") : QString());
    case Event::Condolence:
        return leaveDay(&DayCard::special, QStringLiteral("慶弔休暇"));
    default:
        return presentDay(event, habits);
    }
}

DayCard DayDealer::compensation(Habits& habits) {
    if (habits.owedHalves >= 2 && !dice_.oneIn(4)) {
        habits.owedHalves -= 2;
        return leaveDay(&DayCard::compens, QStringLiteral("代休"));
    }
    --habits.owedHalves;
    DayCard card = usual(habits.shift);
    freeAfternoon(card, habits.shift);
    card.compens = '2';
    return card;
}

bool DayDealer::summerLeave(Habits& habits, const CalendarDay& day) {
    constexpr int days = 3;
    if (civil(day.day).month() != August) return false;
    if (std::exchange(habits.summerYear, yearOf(day.day)) != yearOf(day.day)) habits.summerDays = days;
    if (habits.summerDays == 0 || !dice_.oneIn(6)) return false;
    --habits.summerDays;
    return true;
}

DayDealer::Event DayDealer::eventFor(const Habits& habits) {
    const Event event = events_.draw(dice_);
    if (event != Event::Plain || dice_.below(5) >= habits.zeal) return event;
    return habits.zeal == 3 ? Event::LongOver : Event::ShortOver;
}

// Someone who comes on time and leaves a little after the end; the night shift hands over to the cleaners first.
DayCard DayDealer::usual(Shift shift) {
    const ShiftTimes& times = timesOf(flexible_, shift);
    const int start = times.start - (times.earliest > 0 ? dice_.below(times.earliest) : 0);
    DayCard card;
    card.enter = clock(start - 14, start - 2);
    const int end = times.end + start - times.start;
    card.leave = shift == Shift::Nights ? clock(end + 18, end + 70) : clock(end + 1, end + 14);
    if (dice_.oneIn(15)) card.plan = note();
    return card;
}

void DayDealer::freeMorning(DayCard& card, Shift shift) {
    const int start = timesOf(flexible_, shift).secondHalf;
    card.enter = clock(start - 12, start - 2);
}

void DayDealer::freeAfternoon(DayCard& card, Shift shift) {
    const int end = timesOf(flexible_, shift).firstEnd;
    card.leave = clock(end + 1, end + 12);
}

void DayDealer::stayLonger(DayCard& card, Event event, Habits& habits) {
    const bool night = habits.shift == Shift::Nights;
    if (event == Event::ShortOver) *card.leave += dice_.between(20, 90) * 60;
    if (event == Event::LongOver) *card.leave += dice_.between(100, 230) * 60;
    if (event == Event::LateNight) card.leave = night ? clock(1560, 1640) : clock(1340, 1530);
    if (event == Event::AllNight) card.leave = clock(1745, 1820);
    habits.workedAllNight = event == Event::AllNight;
}

void DayDealer::keepOtherHours(DayCard& card, Event event, const ShiftTimes& times) {
    const int first = times.start - times.earliest;
    if (event == Event::EarlyStart) card.enter = clock(first - 100, first - 45);
    if (event == Event::LateEnter) card.enter = clock(times.coreStart + 3, times.coreStart + 70);
    if (event == Event::EarlyLeave) card.leave = clock(times.coreEnd - 150, times.coreEnd - 20);
}

DayCard DayDealer::presentDay(Event event, Habits& habits) {
    DayCard card = usual(habits.shift);
    stayLonger(card, event, habits);
    keepOtherHours(card, event, timesOf(flexible_, habits.shift));
    if (event == Event::PaidMorning) {
        freeMorning(card, habits.shift);
        card.paid = '1';
    }
    if (event == Event::PaidAfternoon) {
        freeAfternoon(card, habits.shift);
        card.paid = '2';
    }
    if (event == Event::NoLeave) card.leave.reset();
    if (event == Event::NoEnter) card.enter.reset();
    return card;
}

DayCard DayDealer::cleaningDay(const Habits& habits) {
    DayCard card = usual(habits.shift);
    freeAfternoon(card, habits.shift);
    if (dice_.oneIn(6)) *card.leave += dice_.between(60, 240) * 60;
    card.plan = QStringLiteral("大掃除");
    return card;
}

DayCard DayDealer::freeDay(Habits& habits, const CalendarDay& day) {
    habits.workedAllNight = false;
    if (habits.shift == Shift::Nights || day.yearEnd) return noRow();
    const FreeDay work = (day.off == DayOff::Legal ? sundays_ : saturdays_).draw(dice_);
    if (work == FreeDay::Rest) return noRow();
    DayCard card = usual(habits.shift);
    card.plan = QStringLiteral("納期対応");
    if (work == FreeDay::Morning) freeAfternoon(card, habits.shift);
    if (!dice_.oneIn(3)) habits.owedHalves += work == FreeDay::Morning ? 1 : 2;
    return card;
}

QString DayDealer::note() {
    static const std::array notes{QStringLiteral("会議"),     QStringLiteral("研修"),     QStringLiteral("出張"),
                                  QStringLiteral("来客対応"), QStringLiteral("健康診断"), QStringLiteral("棚卸"),
                                  QStringLiteral("安全講習"), QStringLiteral("展示会")};
    return notes[static_cast<std::size_t>(dice_.below(static_cast<int>(notes.size())))];
}

std::vector<Outing> DayDealer::outings(DayCard& card) {
    constexpr int hour = 3600;
    const bool wholeDay = card.enter < 10 * hour && card.leave > 17 * hour && card.leave < midnight;
    if (!card.enter || !wholeDay || card.plan == u"納期対応") return {};
    const auto trip = [&](int from, int to, int shortest, int longest) {
        const int out = clock(from, to);
        return Outing{out, out + clock(shortest, longest)};
    };
    switch (trips_.draw(dice_)) {
    case Trip::One:
        return {trip(605, 810, 60, 150)};
    case Trip::Two:
        return {trip(605, 630, 60, 100), trip(780, 870, 60, 120)};
    case Trip::Open:
        card.plan = QStringLiteral("直帰");
        return {{clock(870, 960), {}}};
    case Trip::OnlyIn:
        return {{{}, clock(700, 900)}};
    case Trip::None:
        break;
    }
    return {};
}

} // namespace kurbo
