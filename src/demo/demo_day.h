#pragma once

#include "demo/demo_calendar.h"
#include "demo/demo_people.h"

#include <vector>

namespace kurbo {

// One person's card row. Times are seconds after the day's midnight; leaves are the codes of the table, 0 for none.
struct DayCard {
    bool exists = true;
    QString plan;
    std::optional<int> enter;
    std::optional<int> leave;
    char paid = 0;
    char special = 0;
    char compens = 0;
};

struct Outing {
    std::optional<int> out;
    std::optional<int> in;
};

// What a person carries from day to day.
struct Habits {
    Shift shift = Shift::Days;
    int zeal = 0;
    bool workedAllNight = false;
    int owedHalves = 0; // free half days earned by holiday work
    int summerYear = 0;
    int summerDays = 0;
};

// Deals out the days that people have.
class DayDealer final {
  public:
    DayDealer(bool flexible, Dice& dice);

    // A day that is over; on the `last` one, who works beyond midnight has not left yet.
    [[nodiscard]] DayCard past(Habits& habits, const CalendarDay& day, bool last);
    // What is known ahead of a day; mostly nothing.
    [[nodiscard]] DayCard coming(const CalendarDay& day);
    // The outings of a sales person's day; going home straight from one is noted in the plan.
    [[nodiscard]] std::vector<Outing> outings(DayCard& card);

  private:
    enum class Event {
        Plain,
        ShortOver,
        LongOver,
        LateNight,
        AllNight,
        EarlyStart,
        LateEnter,
        EarlyLeave,
        PaidDay,
        PaidMorning,
        PaidAfternoon,
        Condolence,
        NoRow,
        EmptyRow,
        NoLeave,
        NoEnter,
    };
    enum class FreeDay { Rest, Whole, Morning };
    enum class Ahead { Nothing, Leave, Note };
    enum class Trip { None, One, Two, Open, OnlyIn };

    [[nodiscard]] DayCard workday(Habits& habits, const CalendarDay& day, bool last);
    [[nodiscard]] DayCard freeDay(Habits& habits, const CalendarDay& day);
    [[nodiscard]] DayCard cleaningDay(const Habits& habits);
    [[nodiscard]] DayCard presentDay(Event event, Habits& habits);
    void stayLonger(DayCard& card, Event event, Habits& habits);
    void keepOtherHours(DayCard& card, Event event, const ShiftTimes& times);
    [[nodiscard]] DayCard compensation(Habits& habits);
    [[nodiscard]] bool summerLeave(Habits& habits, const CalendarDay& day);
    [[nodiscard]] Event eventFor(const Habits& habits);
    [[nodiscard]] DayCard usual(Shift shift);
    void freeMorning(DayCard& card, Shift shift);
    void freeAfternoon(DayCard& card, Shift shift);
    [[nodiscard]] QString note();
    // A time of day between two minutes, with seconds.
    [[nodiscard]] int clock(int from, int to) {
        const int minute = dice_.between(from, to);
        return minute * 60 + dice_.below(60);
    }

    bool flexible_;
    Dice& dice_;
    Deck<Event> events_;
    Deck<FreeDay> saturdays_;
    Deck<FreeDay> sundays_;
    Deck<Ahead> ahead_;
    Deck<Trip> trips_;
};

} // namespace kurbo
