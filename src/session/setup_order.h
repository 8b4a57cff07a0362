#pragma once

#include "base/guard.h"
#include "store/connection.h"

namespace kurbo {

// The administrator's settings screens, in the order in which a new site fills them.
enum class Setting { Corp, Section, Staff, WorkStyle, WorkTime, Access, User, Calendar };

// Whether the screen may open. What has to be set before it is told otherwise.
[[nodiscard]] bool settingAllowed(const Context& context, Connection& connection, Setting setting);

// Says on a site without people how the administrator logs in, as long as the password is the delivered one.
void greetNewSite(const Context& context, Connection& connection);

// Whether the card and totals screens may open: the calendar's first month must have more than 30 days. Says so if not.
[[nodiscard]] bool cardAllowed(const Context& context, Connection& connection);
// Whether there are days to move. Says so if not.
[[nodiscard]] bool moveAllowed(const Context& context, Connection& connection);
// Says so when more than a year of card rows has gathered.
void warnOfOldRecords(const Context& context, Connection& connection);

} // namespace kurbo
