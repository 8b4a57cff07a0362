#pragma once

#include "card/card_cells.h"
#include "ctl/options.h"
#include "store/readers.h"
#include "totals/totals.h"

namespace kurbo {

// What card and totals are asked for, on the command line and for paper. All of these throw WrongUse, and a Complaint
// about somebody or a section that isn't registered.

// A person and the own section, which is nobody's where it isn't registered.
struct AskedPerson {
    CodeName section;
    CodeName staff;
};
[[nodiscard]] AskedPerson askedPerson(Connection& connection, const QString& code);
[[nodiscard]] CodeName askedSection(Connection& connection, const QString& code);

// --month "yyyy/mm", the month in which the period ends, or --from and --to.
[[nodiscard]] Period askedPeriod(const Options& options, int closeDay);

// Of --staff and such a period.
struct AskedCard {
    AskedPerson who;
    Period span;
    Card card;
};
// Nothing after a failure, which has been said.
[[nodiscard]] std::optional<AskedCard> askedCard(const Context& context, Connection& connection,
                                                 const Options& options);

// --section or --staff, --from and --to as months, and --by.
[[nodiscard]] TotalsQuestion askedTotals(const Options& options);
// Whose those are; without the person for a section.
[[nodiscard]] AskedPerson askedPeople(Connection& connection, const TotalsQuestion& question);

} // namespace kurbo
