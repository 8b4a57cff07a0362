#pragma once

#include "card/card_columns.h"
#include "month/card_days.h"

#include <bitset>

namespace kurbo {

// A day row of the card on the screen. Its cells show it; what is typed into them is read here once.
struct CardEntry {
    CardEntry() = default;
    explicit CardEntry(CardDay drawn)
        : day(std::move(drawn)), storedEnter(day.facts.enter), storedLeave(day.facts.leave) {}

    // As it stands in the cells.
    CardDay day;
    // As drawn, to the second. The cells show minutes, and a punch whose cell wasn't edited keeps its seconds.
    std::optional<Moment> storedEnter;
    std::optional<Moment> storedLeave;
    bool enterEdited = false;
    bool leaveEdited = false;
    bool absent = false; // it counts as an absence
    // The columns whose cells hold what they can't take.
    std::bitset<cardColumns> unreadable;

    [[nodiscard]] bool isReadable(CardColumn column) const { return !unreadable[static_cast<std::size_t>(column)]; }
    [[nodiscard]] bool hasEnter() const { return day.facts.enter || !isReadable(CardColumn::Enter); }
    [[nodiscard]] bool hasLeave() const { return day.facts.leave || !isReadable(CardColumn::Leave); }

    // Whether the column takes the text, which isn't empty. A time without its leading zero is taken while it is typed;
    // the check before the card is written refuses it.
    [[nodiscard]] bool takes(CardColumn column, const QString& text) const;
    // Takes over what was typed into a cell, trimmed; the empty text empties it. Columns that nobody types into are
    // passed over.
    void read(CardColumn column, const QString& text);
};

} // namespace kurbo
