#pragma once

#include "base/guard.h"

namespace kurbo {

// The first line of a listing: "<subject>  (yyyy/mm/dd 現在)".
[[nodiscard]] QString listingTitle(const QString& subject, Day today);

// What stands before a value: "<label>：", the label right-aligned in `width` half-width columns.
[[nodiscard]] QString listingLabel(const QString& label, int width);

// Replaces "Print.txt" by the lines and opens it for reading and printing. False after a failure, which is reported
// under the form and the procedure.
bool showListing(const Context& context, QStringView form, QStringView procedure, const QStringList& listing);

} // namespace kurbo
