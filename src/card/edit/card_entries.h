#pragma once

#include "card/card_cells.h"

namespace kurbo {

// What may be typed into the cells of a card, and the sentences that ask for it. The empty text is taken everywhere and
// isn't asked about here.

// A plan of at most 30 bytes in the code page.
[[nodiscard]] bool isPlanText(const QString& text);
// 全日, 午前 or 午後.
[[nodiscard]] bool isLeaveWord(const QString& text);
// A number in half-width characters.
[[nodiscard]] bool isNumberText(const QString& text);
// Hours "h:mm" in half-width characters; both parts are whole numbers.
[[nodiscard]] bool isHourText(const QString& text);

// The form of a sum of the summary rows. Hours are numbers where the company counts them so (plngCountUnit 0).
enum class SumForm { None, Number, Hours };
[[nodiscard]] SumForm sumForm(CardColumn column, int countUnit);
[[nodiscard]] bool isSum(SumForm form, const QString& text);

// "予定は…", "リストから…"; the lines "出社時刻は…", "退社時刻は…" and, for a leave on a later date, "勤務が翌日に…";
// "数値 (半角)を…" or the lines "時間を…". Nothing stands before them or behind them.
[[nodiscard]] QString planDemand();
[[nodiscard]] QString listDemand();
[[nodiscard]] QString enterDemand();
[[nodiscard]] QString leaveDemand();
[[nodiscard]] QString nextDayDemand();
[[nodiscard]] QString sumDemand(SumForm form);

} // namespace kurbo
