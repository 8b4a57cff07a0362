#include "demo/demo_month.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr int daySeconds = 86'400;

struct Stay {
    int enter;
    int leave;
};

int overlap(const Stay& stay, const WorkBand& band, int date) {
    const int start = std::max(stay.enter, date * daySeconds + band.start * 60);
    const int end = std::min(stay.leave, date * daySeconds + band.end * 60);
    return std::max(end - start, 0);
}

int overlapOn(const Stay& stay, const WorkBands& bands, int date) {
    int seconds = 0;
    for (const WorkBand& band : bands)
        if (band.inUse()) seconds += overlap(stay, band, date);
    return seconds;
}

// On the day itself and on the next, in minutes.
int minutesIn(const Stay& stay, const WorkBands& bands) {
    return (overlapOn(stay, bands, 0) + overlapOn(stay, bands, 1)) / 60;
}

int workMinutes(const Stay& stay, const Style& style) {
    return (overlapOn(stay, style.work, 0) + overlapOn(stay, style.work, 1) + overlapOn(stay, style.flex, 0) +
            overlapOn(stay, style.flex, 1)) /
           60;
}

int overMinutes(const Stay& stay, const Style& style, const Style& next) {
    return (overlapOn(stay, style.over, 0) + overlapOn(stay, style.over, 1) + overlapOn(stay, next.afterLate, 1)) / 60;
}

int absentMinutes(const Stay& stay, const Style& style) {
    int seconds = -overlapOn(stay, style.work, 0);
    for (const WorkBand& band : style.work) seconds += (band.end - band.start) * 60;
    return seconds / 60;
}

Stay business(const Style& style) {
    int end = 0;
    for (const WorkBand& band : style.work) end = std::max(end, band.end);
    return {style.work[0].start * 60, end * 60};
}

Stay roundedStay(const Stay& raw) {
    constexpr int unit = roundUnit * 60;
    return {(raw.enter + unit - 1) / unit * unit, raw.leave / unit * unit};
}

DayKind kindOf(DemoDay code) {
    switch (code) {
    case DemoDay::Holiday:
    case DemoDay::LegalHoliday:
        return DayKind::Holiday;
    case DemoDay::MorningLeave:
        return DayKind::AmHoliday;
    case DemoDay::AfternoonOff:
    case DemoDay::AfternoonLeave:
        return DayKind::PmHoliday;
    case DemoDay::Work:
    case DemoDay::WholeLeave:
        break;
    }
    return DayKind::Weekday;
}

void addHoliday(MonthFigures& month, const Style& style, const Stay& stay, bool legal) {
    const int work = (overlapOn(stay, style.work, 0) + overlapOn(stay, style.work, 1) +
                      overlapOn(stay, style.early, 0) + overlapOn(stay, style.early, 1)) /
                     60;
    const int late = minutesIn(stay, style.late);
    month.of(legal ? Figure::LegalHoliday : Figure::Holiday) += work;
    month.of(legal ? Figure::LegalLate : Figure::HolidayLate) += late;
    if (work + late > 0) ++month.workDays;
}

// Who misses a half day misses its part of the weekday's hours.
void addAbsence(MonthFigures& month, const Style& style, const Style& weekday) {
    ++month.absentDays;
    month.of(Figure::Absent) += workMinutes(business(weekday), style);
}

// A free morning brings no early work, an afternoon's leave no overtime.
void addOvertime(MonthFigures& month, DemoDay code, const Stay& stay, const Style& style, const Style& next) {
    if (code != DemoDay::AfternoonLeave) {
        month.of(Figure::LegalOver) += minutesIn(stay, style.legalOver);
        month.of(Figure::Over) += overMinutes(stay, style, next);
        month.of(Figure::Late) += minutesIn(stay, style.late);
    }
    if (code != DemoDay::MorningLeave) month.of(Figure::Early) += overlapOn(stay, style.early, 0) / 60;
}

void addWork(MonthFigures& month, const Stay& raw, const Stay& stay, const Style& style) {
    const int work = workMinutes(stay, style);
    month.of(Figure::Work) += work;
    month.of(Figure::Absent) += absentMinutes(stay, style);
    if (work == 0) {
        ++month.absentDays;
        return;
    }
    ++month.workDays;
    if (raw.enter > business(style).enter) ++month.lateEnters;
    if (raw.leave < business(style).leave) ++month.earlyLeaves;
}

} // namespace

void addDay(MonthFigures& month, bool flexible, Shift shift, const DemoFacts& facts) {
    if (facts.code == DemoDay::WholeLeave) return;
    const Style& style = styleOf(flexible, shift, kindOf(facts.code));
    const bool holiday = kindOf(facts.code) == DayKind::Holiday;
    if (!facts.enter && !facts.leave && !holiday) addAbsence(month, style, styleOf(flexible, shift, DayKind::Weekday));
    if (!facts.enter || !facts.leave) return;
    const Stay raw{*facts.enter, *facts.leave};
    const Stay stay = flexible ? raw : roundedStay(raw);
    if (holiday) {
        addHoliday(month, style, stay, facts.code == DemoDay::LegalHoliday);
        return;
    }
    addWork(month, raw, stay, style);
    addOvertime(month, facts.code, stay, style, styleOf(flexible, shift, facts.next));
}

MonthFigures finalFigures(MonthFigures month, bool flexible, Adjust adjust) {
    if (flexible)
        for (int& minutes : month.minutes) minutes -= minutes % roundUnit;
    const Limits& limits = limitsOf(adjust);
    for (const auto& [figure, limit] : {std::pair{Figure::LegalOver, limits.legalOver},
                                        {Figure::Over, limits.over},
                                        {Figure::Late, limits.late},
                                        {Figure::Early, limits.early},
                                        {Figure::Holiday, limits.holiday},
                                        {Figure::HolidayLate, limits.holidayLate},
                                        {Figure::LegalHoliday, limits.legalHoliday},
                                        {Figure::LegalLate, limits.legalLate}})
        month.of(figure) = std::min(month.of(figure), limit.value_or(month.of(figure)));
    return month;
}

} // namespace kurbo
