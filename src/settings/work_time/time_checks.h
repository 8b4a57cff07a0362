#pragma once

#include "settings/work_time/time_sheet.h"
#include "store/connection.h"

namespace kurbo {

// Why a name can't be taken when its box is left; empty when it can. Empty text is no name, and passes.
[[nodiscard]] QString timeNameRefusal(const TimePage& page, const QString& name);

// Throws the complaint of the first rule that the page, to be stored under the trimmed name, fails. The check of the
// limits looks at the cells of the weekday page.
void checkTimes(Connection& connection, const TimeSheet& sheet, const QString& name, const TimeSheet& weekday);

} // namespace kurbo
