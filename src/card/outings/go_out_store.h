#pragma once

#include "card/outings/go_out_sheet.h"
#include "store/connection.h"

namespace kurbo {

// What a day's outings ask of the store. All of these throw.

// The outings of a card row in their order, 7 cells each, times as "yyyy/mm/dd hh:nn:ss".
[[nodiscard]] QList<QStringList> readOutings(Connection& connection, std::int64_t key);
// The person's places as a list that also takes other names: the most often visited first, then by name.
[[nodiscard]] QString destinationList(Connection& connection, const QString& staff);
// What the person last spent on the way to that place, in ten-thousandths of a yen; 0 where nothing is known.
[[nodiscard]] std::int64_t lastExpense(Connection& connection, const QString& staff, const QString& destination);
// Puts the outings of a checked sheet in the place of those stored, all or nothing; a name not known yet becomes a
// place of the person. A card row that another client has deleted meanwhile is a fault.
void writeOutings(Connection& connection, const GoOutSheet& sheet);

} // namespace kurbo
