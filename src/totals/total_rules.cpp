#include "totals/total_rules.h"

#include "month/figure_texts.h"
#include "totals/totals.h"

namespace kurbo {

QString withoutMark(const QString& text) {
    if (text.endsWith(u')')) return text.left(text.lastIndexOf(u'('));
    return text.mid(text.lastIndexOf(u')') + 1);
}

bool isFigure(int column, int countUnit, const QString& text) {
    const QuantityFacts* const facts = quantityAt(static_cast<TotalColumn>(column));
    if (!facts) return false;
    const SumForm form = sumForm(*facts, countUnit);
    return isSum(form, form == SumForm::Hours ? withoutMark(text) : text);
}

bool TotalRules::mayEdit(int row, int column) const {
    const TotalEntry* const month = sheet_.at(row);
    const bool figure = quantityAt(static_cast<TotalColumn>(column)) != nullptr;
    if (sheet_.blnFileMode || !figure || !month || !month->hasFigures) return false;
    return session_.access.has(month->staff == session_.SessionStaff ? Right::WriteMyMonthly
                                                                     : Right::WriteOtherMonthly);
}

QString TotalRules::refusal(int /*row*/, int column, const QString& text) const {
    if (isFigure(column, sheet_.plngCountUnit, text)) return {};
    return QStringLiteral("不正な入力です。") +
           sumDemand(sumForm(*quantityAt(static_cast<TotalColumn>(column)), sheet_.plngCountUnit));
}

void TotalRules::edited(int row, int column) {
    const QuantityFacts* const facts = quantityAt(static_cast<TotalColumn>(column));
    if (TotalEntry* const month = sheet_.at(row); month && facts) {
        const QString text = sheet_.grid.TextMatrix(row, column);
        month->edits[facts->id] =
            readFigure(*facts, facts->unit() == Unit::Time ? withoutMark(text) : text, sheet_.plngCountUnit);
    }
    sheet_.changed = true;
    if (sheet_.onEdit) sheet_.onEdit();
}

QString TotalRules::scrollTip(int row) const {
    return sheet_.grid.TextMatrix(row, static_cast<int>(TotalColumn::First)) + u' ' +
           sheet_.grid.TextMatrix(row, static_cast<int>(TotalColumn::Second));
}

} // namespace kurbo
