#pragma once

#include "base/guard.h"
#include "card/edit/card_entry.h"
#include "engine/hours.h"
#include "month/saved_figures.h"
#include "store/connection.h"

#include <QStringList>

#include <array>
#include <optional>

namespace kurbo {

// A card as texts, ready for a grid, a file or the command line, and what they show. Every row has a cell for each
// column.
struct Card {
    QStringList headings;
    std::array<QStringList, 3> summary; // captions, what the days add up to, what counts for the month
    QList<QStringList> days;
    std::vector<CardEntry> entries; // of the days
    FigureList sums;                // what the days add up to
    int countUnit = 1;              // of its hours: 0 decimal, 1 h:mm
    std::array<bool, cardColumns> hidden{};
    // Set when the span is a whole card period that has ended; a saved month then gives the last summary row.
    bool wholePeriod = false;
    bool saved = false;
    bool personalApproval = false;
    bool superiorApproval = false;
};

// The calculated card of one person; `rules` are loaded for that person. Nothing after a failure, which is reported
// under "ShowKurbo".
[[nodiscard]] std::optional<Card> makeCard(const Context& context, Connection& connection, clsWorkTime& rules,
                                           const QString& staff, Period span);

} // namespace kurbo
