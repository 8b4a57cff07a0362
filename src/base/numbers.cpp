#include "base/numbers.h"

#include "base/failure.h"
#include "base/product.h"

#include <QRegularExpression>

namespace kurbo {

std::optional<double> numberOf(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral("\\A[ \\t]*([+-]?(?:\\d[\\d,]*\\.?\\d*|\\.\\d+))(?:[eEdD]([+-]?\\d+))?[ \\t]*\\z"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return {};
    const QString exponent = match.hasCaptured(2) ? match.captured(2) : QStringLiteral("0");
    const double number = (match.captured(1).remove(u',') + u'e' + exponent).toDouble();
    return std::isinf(number) ? std::nullopt : std::optional(number);
}

void overflow() {
    constexpr int number = 6;
    throw Fault(number, productName(), QStringLiteral("オーバーフローしました。"));
}

float singleOf(double number) {
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) overflow();
    return static_cast<float>(number);
}

} // namespace kurbo
