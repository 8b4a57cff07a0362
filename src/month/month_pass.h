#pragma once

#include "engine/hours.h"
#include "month/day_loop.h"
#include "store/connection.h"

#include <functional>
#include <vector>

namespace kurbo {

// A person's months to be calculated.
struct PersonMonths {
    QString staff;
    clsWorkTime rules;           // loaded for the person
    std::vector<Period> periods; // at least one; in their order, none within another
    std::vector<Figures> sums;   // made: one for each period, rounded where the company rounds by the month
};

// Told how much of the span has been read, 0 to 100; it may throw to give the pass up.
using PassNotice = std::function<void(int percent)>;

// Makes the sums of all people, each the same as that of the person's card. The card rows of the whole span are read
// once by day, or where the people are few among those of the file only their own, by the index; no more of them is
// kept than a period of each person. Throws a Fault.
void makeMonths(Connection& connection, std::vector<PersonMonths>& people, Day today, const PassNotice& notice);

} // namespace kurbo
