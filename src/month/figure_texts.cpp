#include "month/figure_texts.h"

#include "base/failure.h"
#include "base/field_tests.h"
#include "engine/hours.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

// By their codes "0", "1", "2".
const std::array<QString, 3>& leaveWords() {
    static const std::array words{QStringLiteral("全日"), QStringLiteral("午前"), QStringLiteral("午後")};
    return words;
}

bool isNumberText(const QString& text) {
    return IsSingleByte(text) && isNumeric(text);
}

bool isHourText(const QString& text) {
    const qsizetype colon = text.size() - 3;
    return colon >= 0 && text[colon] == u':' && IsSingleByte(text) && IsIntegerText(text.left(colon)) &&
           IsIntegerText(text.right(2));
}

} // namespace

QString leaveWord(QChar code) {
    return code >= u'0' && code <= u'2' ? leaveWords()[static_cast<std::size_t>(code.unicode() - u'0')] : QString();
}

QString leaveCode(const QString& word) {
    const auto found = std::ranges::find(leaveWords(), word);
    return found == leaveWords().end() ? QString() : QString::number(found - leaveWords().begin());
}

QString daysText(double days) {
    return QString::number(days, 'f', 1);
}

QString daysText(DayHundredths days) {
    return daysText(days.count() / 100.0);
}

QString figureText(const MonthFigure& figure, int countUnit) {
    if (const auto* const minutes = std::get_if<Minutes>(&figure)) return FormatHours(*minutes, countUnit, false);
    if (const auto* const days = std::get_if<DayHundredths>(&figure)) return daysText(*days);
    return isKnown(figure) ? QString::number(countOf(figure)) : QString();
}

SumForm sumForm(const QuantityFacts& facts, int countUnit) {
    return facts.unit() == Unit::Time && countUnit != 0 ? SumForm::Hours : SumForm::Number;
}

bool isSum(SumForm form, const QString& text) {
    return form == SumForm::Hours ? isHourText(text) : isNumberText(text);
}

QString sumDemand(SumForm form) {
    if (form == SumForm::Number) return QStringLiteral("数値(半角)を入力して下さい。");
    return lines(QStringLiteral("時間を入力して下さい。"), QStringLiteral("時間はh:mm形式(半角)で入力します。"),
                 QStringLiteral("例：30時間30分の場合は下記の様に入力します。"), QStringLiteral("    30:30"));
}

} // namespace kurbo
