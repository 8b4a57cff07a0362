#pragma once

#include <QString>

namespace kurbo {

// What may be typed into the cells of a card, and the sentences that ask for it. The empty text is taken everywhere and
// isn't asked about here.

// A plan of at most 30 bytes in the code page.
[[nodiscard]] bool isPlanText(const QString& text);
// 全日, 午前 or 午後.
[[nodiscard]] bool isLeaveWord(const QString& text);
// "予定は…", "リストから…"; the lines "出社時刻は…", "退社時刻は…" and, for a leave on a later date, "勤務が翌日に…".
// Nothing stands before them or behind them.
[[nodiscard]] QString planDemand();
[[nodiscard]] QString listDemand();
[[nodiscard]] QString enterDemand();
[[nodiscard]] QString leaveDemand();
[[nodiscard]] QString nextDayDemand();

} // namespace kurbo
