#include "card/edit/card_entry.h"

#include "card/edit/card_entries.h"
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

} // namespace

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
