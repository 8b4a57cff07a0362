#pragma once

#include <QString>

#include <cmath>
#include <concepts>
#include <limits>
#include <optional>

namespace kurbo {

// The number that a person typed: a sign, half-width digits with commas between them, one decimal point and an exponent
// after e or d may stand in it, and blanks around it. Nothing for any other text, and past the range of double
// precision.
[[nodiscard]] std::optional<double> numberOf(const QString& text);

// Throws the fault of an overflow.
[[noreturn]] void overflow();

// The nearest whole number, halves to the even one. Throws the fault of an overflow where it does not fit.
template <std::signed_integral Whole>
[[nodiscard]] Whole wholeOf(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) overflow();
    return static_cast<Whole>(rounded);
}

// In single precision. Throws the fault of an overflow where it does not fit.
[[nodiscard]] float singleOf(double number);

} // namespace kurbo
