#pragma once

#include "engine/work_time.h"

#include <QChar>
#include <QString>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace kurbo {

// The facts of one calendar day, as stored. A code of 0 means none.
struct DayFacts {
    Day date;
    QChar type; // of the calendar: "0" holiday, "1" AM, "2" PM, any other a legal holiday
    std::optional<Moment> enter;
    std::optional<Moment> leave;
    QChar paid; // leaves: "0" whole day, "1" AM, "2" PM
    QChar special;
    QChar compens;
};

// Working day, ordinary holiday and half holidays, legal holiday; then paid, special and compensatory leave of a whole
// day, a morning, an afternoon.
enum class DayCode { WD, OH, OA, OP, LH, PH, PA, PP, SH, SA, SP, CH, CA, CP };

// The leaves come first, in their order; only without one the calendar decides.
[[nodiscard]] DayCode dayCodeOf(const DayFacts& day);

// Every quantity that payroll needs: of one day, or added up.
struct Figures {
    Minutes work{};
    Minutes difference{}; // from the standard time of a flexible day
    Minutes legalOver{};
    Minutes over{};
    Minutes late{};
    Minutes early{};
    Minutes holiday{};
    Minutes holidayLate{};
    Minutes legalHoliday{};
    Minutes legalLate{};
    Minutes absent{};
    Count workDays;
    HalfDays paid;
    HalfDays special;
    HalfDays compens;
    Count absentDays;
    Count lateEnters;
    Count earlyLeaves;

    Figures& operator+=(const Figures& other);
    friend bool operator==(const Figures&, const Figures&) = default;
};

struct CardFigures {
    std::vector<Figures> days;
    Figures sum;
};

// When the work of a day begins by its calendar type: its date at the start of the first band of that kind of day, at
// 00:00 where there is none.
[[nodiscard]] Moment startOfDay(const clsWorkTime& rules, Day date, QChar type);

// What is carried into `first`, the first of some days: the end of the person's last shift before it, `leave`, where
// that lies beyond the day's start.
[[nodiscard]] std::optional<Moment> carryInto(const clsWorkTime& rules, const DayFacts& first,
                                              std::optional<Moment> leave);

// Walks the days of one person in their order. `rules` are loaded; their day state is overwritten. `next` is the
// calendar type of the day behind the last, 0 when the calendar ends there. `carry` is the end of a shift that ran over
// the start of the first day. Before `today` a day without punches goes on with what was carried into it, or is an
// absence. Throws the fault of a setter, as for a leave before its enter.
[[nodiscard]] CardFigures calculateDays(clsWorkTime& rules, std::span<const DayFacts> days, QChar next,
                                        std::optional<Moment> carry, Day today);

// Rounds a month's times where the company rounds by the month (plngRoundMethod 1).
void roundSums(const clsWorkTime& rules, Figures& sum);

} // namespace kurbo
