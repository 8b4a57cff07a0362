#include "month/month_figures.h"

#include <cmath>

namespace kurbo {
namespace {

MonthFigure read(const QuantityFacts& facts, const Rows& record, int column) {
    if (record.isNull(column)) return {};
    if (facts.unit() == Unit::Days) return hundredths(record.real(column));
    const auto number = static_cast<std::int32_t>(record.integer(column));
    return facts.unit() == Unit::Time ? MonthFigure(Minutes(number)) : MonthFigure(Count(number));
}

} // namespace

DayHundredths hundredths(double days) {
    return DayHundredths(static_cast<std::int32_t>(std::lround(days * 100)));
}

FigureList monthFigures(const Figures& sum, DayHundredths balance) {
    FigureList figures;
    figures[placeOf(Quantity::PaidTotal)] = balance - hundredths(sum.paid);
    forEachOfDay([&](const QuantityFacts& facts, auto member) {
        MonthFigure& figure = figures[placeOf(facts.id)];
        if constexpr (std::is_same_v<decltype(member), HalfDays Figures::*>)
            figure = hundredths(sum.*member);
        else
            figure = sum.*member;
    });
    return figures;
}

FigureList readMonthFigures(const Rows& record, int first) {
    FigureList figures;
    for (const QuantityFacts& facts : quantities)
        figures[placeOf(facts.id)] = read(facts, record, first + static_cast<int>(placeOf(facts.id)));
    return figures;
}

} // namespace kurbo
