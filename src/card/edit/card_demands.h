#pragma once

#include <QString>

namespace kurbo {

// The sentences that ask for what may be typed into the cells of a card: "予定は…", "リストから…"; the lines
// "出社時刻は…", "退社時刻は…" and, for a leave on a later date, "勤務が翌日に…". Nothing stands before them or behind
// them.
[[nodiscard]] QString planDemand();
[[nodiscard]] QString listDemand();
[[nodiscard]] QString enterDemand();
[[nodiscard]] QString leaveDemand();
[[nodiscard]] QString nextDayDemand();

} // namespace kurbo
