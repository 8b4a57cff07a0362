#pragma once

#include "base/guard.h"

#include <QString>

namespace kurbo {

// Where the moved days go. Throws a Complaint where `destination`, whose folder is there, can't hold a copy of the
// database: the database itself or a file that the system keeps for another use, a place that may not be written, a
// disk without enough room. Nothing is touched.
void checkPlace(const Context& context, const QString& database, const QString& destination);

} // namespace kurbo
