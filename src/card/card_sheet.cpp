#include "card/card_sheet.h"

#include "card/card_grid.h"

namespace kurbo {

void CardSheet::show(Card card) {
    fillCardGrid(grid, card);
    days = std::move(card.entries);
    sums = card.sums;
    // As they are shown: that is approved and saved.
    for (const QuantityFacts& facts : quantities)
        finals[placeOf(facts.id)] =
            readFigure(facts, cardText(grid, finalSumRow, cardColumnOf(facts.id)), card.countUnit);
    drawn();
}

void CardSheet::drawn() {
    blnCardChanged = blnMonthChanged = blnFileMode = false;
    for (CardEntry& day : days) day.enterEdited = day.leaveEdited = false;
    grid.clearRowStatus();
}

const CardEntry* CardSheet::dayAt(int row) const {
    const int place = row - firstCardDay;
    return place >= 0 && place < std::ssize(days) ? &days[static_cast<std::size_t>(place)] : nullptr;
}

CardEntry* CardSheet::dayAt(int row) {
    return const_cast<CardEntry*>(std::as_const(*this).dayAt(row)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

std::vector<const CardEntry*> CardSheet::changedDays() const {
    std::vector<const CardEntry*> changed;
    for (int row = firstCardDay; row < grid.Rows(); ++row)
        if (const CardEntry* const day = dayAt(row); day && grid.RowStatus(row) == GridStatus::Modified)
            changed.push_back(day);
    return changed;
}

} // namespace kurbo
