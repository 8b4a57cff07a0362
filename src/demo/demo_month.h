#pragma once

#include "demo/demo_styles.h"

#include <array>

namespace kurbo {

enum class DemoDay { Work, Holiday, LegalHoliday, AfternoonOff, MorningLeave, AfternoonLeave, WholeLeave };

// What a finished day's card row says. Times are seconds after the day's midnight.
struct DemoFacts {
    DemoDay code = DemoDay::Work;
    DayKind next = DayKind::Weekday; // of the following day
    std::optional<int> enter;
    std::optional<int> leave;
};

// Minutes of a month, in the order of the saved record.
enum class Figure { Work, LegalOver, Over, Late, Early, Holiday, HolidayLate, LegalHoliday, LegalLate, Absent };
inline constexpr std::size_t figureCount = 10;

struct MonthFigures {
    std::array<int, figureCount> minutes{};
    int workDays = 0;
    int absentDays = 0;
    int lateEnters = 0;
    int earlyLeaves = 0;

    [[nodiscard]] int& of(Figure figure) { return minutes[static_cast<std::size_t>(figure)]; }
    [[nodiscard]] int of(Figure figure) const { return minutes[static_cast<std::size_t>(figure)]; }
};

// Adds a day that lies in the past. A stay must not reach into the next day's working hours.
void addDay(MonthFigures& month, bool flexible, Shift shift, const DemoFacts& facts);

// The month as it is saved: rounded for flexible work, and cut to the limits.
[[nodiscard]] MonthFigures finalFigures(MonthFigures month, bool flexible, Adjust adjust);

} // namespace kurbo
