#include "base/field_tests.h"

#include "base/day.h"
#include "base/numbers.h"
#include "base/system/code_page.h"

#include <algorithm>

namespace kurbo {
namespace {

bool isLetterOrDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

} // namespace

bool isNumeric(const QString& text) {
    return numberOf(text).has_value();
}

bool IsIntegerText(const QString& text, IntegerMode mode) {
    const auto number = numberOf(text);
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

} // namespace kurbo
