#pragma once

#include "card/card_cells.h"
#include "ctl/options.h"
#include "totals/totals.h"

namespace kurbo {

// What card and totals are asked for, on the command line and for paper. All of these throw WrongUse.

// --month "yyyy/mm", the month in which the period ends, or --from and --to.
[[nodiscard]] Period askedPeriod(const Options& options, int closeDay);

// Of --staff and such a period.
struct AskedCard {
    QString staff;
    Period span;
    Card card;
};
// Nothing after a failure, which has been said.
[[nodiscard]] std::optional<AskedCard> askedCard(const Context& context, Connection& connection,
                                                 const Options& options);

// --section or --staff, --from and --to as months, and --by.
[[nodiscard]] TotalsQuestion askedTotals(const Options& options);

} // namespace kurbo
