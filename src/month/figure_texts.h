#pragma once

#include "month/month_figures.h"

#include <QChar>
#include <QString>

namespace kurbo {

// The word of a stored leave, "0", "1" or "2": 全日, 午前, 午後; empty for any other code.
[[nodiscard]] QString leaveWord(QChar code);
// The stored code of a leave's word; empty for any other text.
[[nodiscard]] QString leaveCode(const QString& word);

// Days as text with one place, "18.5".
[[nodiscard]] QString daysText(double days);
[[nodiscard]] QString daysText(DayHundredths days);

// A figure of a month, hours as the company counts them (plngCountUnit); empty where none is known.
[[nodiscard]] QString figureText(const MonthFigure& figure, int countUnit);

// How a figure of a month is typed. Hours are numbers where the company counts them so (plngCountUnit 0).
enum class SumForm { Number, Hours };
[[nodiscard]] SumForm sumForm(const QuantityFacts& facts, int countUnit);
// A number in half-width characters; hours "h:mm" in half-width characters, both parts whole numbers.
[[nodiscard]] bool isSum(SumForm form, const QString& text);
// "数値(半角)を…" or the lines "時間を…". Nothing stands before them or behind them.
[[nodiscard]] QString sumDemand(SumForm form);

} // namespace kurbo
