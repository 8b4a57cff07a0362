#include "screen/field_tests.h"

#include "base/code_page.h"
#include "base/day.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace kurbo {
namespace {

bool isLetterOrDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

} // namespace

std::optional<double> numberIn(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral("\\A[ \\t]*([+-]?(?:\\d[\\d,]*\\.?\\d*|\\.\\d+))(?:[eEdD]([+-]?\\d+))?[ \\t]*\\z"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return {};
    const QString exponent = match.hasCaptured(2) ? match.captured(2) : QStringLiteral("0");
    const double number = (match.captured(1).remove(u',') + u'e' + exponent).toDouble();
    return std::isinf(number) ? std::nullopt : std::optional(number);
}

bool isNumeric(const QString& text) {
    return numberIn(text).has_value();
}

bool IsIntegerText(const QString& text, IntegerMode mode) {
    const auto number = numberIn(text);
    if (!number || text.contains(u'.')) return false;
    switch (mode) {
    case IntegerMode::NotNegative:
        return *number >= 0;
    case IntegerMode::Positive:
        return *number > 0;
    case IntegerMode::NotPositive:
        return *number <= 0;
    case IntegerMode::Negative:
        return *number < 0;
    case IntegerMode::Any:
        break;
    }
    return true;
}

bool isTimeText(const QString& text) {
    return parseClock(text).has_value();
}

bool IsAlphaNumeric(const QString& text) {
    return !text.isEmpty() && std::ranges::all_of(text, isLetterOrDigit);
}

bool IsSingleByte(const QString& text) {
    const auto bytes = toCodePage(text);
    return !text.isEmpty() && bytes && bytes->size() == text.size();
}

int CountOf(const QString& text, const QString& part) {
    return part.isEmpty() ? 0 : static_cast<int>(text.count(part));
}

} // namespace kurbo
