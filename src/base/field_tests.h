#pragma once

#include <QString>

namespace kurbo {

// Tests of what a person typed. Digits are the half-width ones; empty text passes none of them.

// A number: a sign, digits with commas between them, one decimal point and an exponent after e or d may stand in it,
// and blanks around it. A number past the range of double precision is none.
[[nodiscard]] bool isNumeric(const QString& text);

// Which whole numbers pass.
enum class IntegerMode { Any = 0, NotNegative = 1, Positive = 2, NotPositive = 3, Negative = 4 };
// A number without a decimal point (1e3 passes).
[[nodiscard]] bool IsIntegerText(const QString& text, IntegerMode mode = IntegerMode::Any);

// A time of day: "hh:mm", "h:mm" or "hh:mm:ss", hours 0 to 23.
[[nodiscard]] bool isTimeText(const QString& text);
// Half-width letters and digits only.
[[nodiscard]] bool IsAlphaNumeric(const QString& text);
// Characters of one byte in the code page only, that is ASCII and half-width katakana.
[[nodiscard]] bool IsSingleByte(const QString& text);

} // namespace kurbo
