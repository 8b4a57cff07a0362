#pragma once

#include "engine/hours.h"
#include "month/day_loop.h"
#include "store/connection.h"

#include <vector>

namespace kurbo {

// One row of a card as stored: a calendar day, with the person's card row when there is one.
struct CardDay {
    DayFacts facts;
    QString plan;
    std::optional<std::int64_t> kurboId;
};
[[nodiscard]] inline DayFacts& factsIn(CardDay& row) {
    return row.facts;
}

struct CardDays {
    std::vector<CardDay> days;
    QChar next; // calendar type of the day behind the span, 0 when the calendar ends with it
};

// The calendar days of the span in their order. Two questions that go through indexes and are merged here give the same
// rows as the one with UNION and NOT IN. Throws a Fault.
[[nodiscard]] CardDays readCardDays(Connection& connection, const QString& staff, Period span);

} // namespace kurbo
