#pragma once

#include "base/guard.h"
#include "card/card_sheet.h"
#include "engine/hours.h"
#include "engine/work_time.h"

#include <optional>

namespace kurbo {

// The checks before a card is written. Each shows its first refusal and then gives false, or nothing.

// The period of the two texts "yyyy/mm/dd"; one day is a period too.
[[nodiscard]] std::optional<Period> checkedPeriod(const Context& context, const QString& start, const QString& end);
// The day rows that the person has changed, and no others; `start` and `end` are the period on the screen.
[[nodiscard]] bool CheckDayly(const Context& context, const CardSheet& sheet, const QString& start, const QString& end);
// The final sums; `rules` are those of the card's person.
[[nodiscard]] bool CheckMonthly(const Context& context, const CardSheet& sheet, const clsWorkTime& rules);

// The days with one punch of the two, and those that count as absent, two a line under a heading; empty when there are
// none. A day with one punch that counts as absent stands there twice.
[[nodiscard]] QString ListMissingPunch(const CardSheet& sheet);

} // namespace kurbo
