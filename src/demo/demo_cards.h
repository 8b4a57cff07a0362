#pragma once

#include "demo/demo_calendar.h"
#include "demo/demo_people.h"

namespace kurbo {

// The card rows from the first day on, their outings and destinations, the leaves planned ahead, and the saved months.
// Each person's paid leave becomes what is left of it after the newest saved month.
void writeCards(Connection& connection, std::vector<Person>& people, const std::vector<DemoSection>& sections,
                const std::vector<CalendarDay>& calendar, const CardSpan& span, bool flexible, Dice& dice);

} // namespace kurbo
