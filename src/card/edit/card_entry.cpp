#include "card/edit/card_entry.h"

#include "base/system/code_page.h"
#include "card/edit/card_times.h"
#include "month/figure_texts.h"

namespace kurbo {
namespace {

// The leave of a column; none for the other columns.
QChar DayFacts::*leaveIn(CardColumn column) {
    if (column == CardColumn::Paid) return &DayFacts::paid;
    if (column == CardColumn::Special) return &DayFacts::special;
    return column == CardColumn::Compens ? &DayFacts::compens : nullptr;
}

bool isPlanText(const QString& text) {
    constexpr int mostBytes = 30;
    return byteLength(text) <= mostBytes;
}

} // namespace

bool CardEntry::takes(CardColumn column, const QString& text) const {
    CardEntry typed(day);
    typed.read(column, text);
    const bool time = column == CardColumn::Enter || column == CardColumn::Leave;
    return typed.isReadable(column) || (time && timeOn(day.facts.date, text));
}

void CardEntry::read(CardColumn column, const QString& text) {
    bool readable = true;
    if (column == CardColumn::Plan) {
        day.plan = text;
        readable = isPlanText(text);
    } else if (column == CardColumn::Enter) {
        day.facts.enter = enterTime(day.facts.date, text);
        readable = text.isEmpty() || day.facts.enter;
        enterEdited = true;
    } else if (column == CardColumn::Leave) {
        day.facts.leave = leaveTime(day.facts.date, text);
        readable = text.isEmpty() || day.facts.leave;
        leaveEdited = true;
    } else if (const auto leave = leaveIn(column)) {
        const QString code = leaveCode(text);
        day.facts.*leave = code.isEmpty() ? QChar() : code.front();
        readable = text.isEmpty() || !code.isEmpty();
    }
    unreadable[static_cast<std::size_t>(column)] = !readable;
}

} // namespace kurbo
