#pragma once

#include "base/guard.h"
#include "engine/work_time.h"
#include "store/connection.h"

namespace kurbo {

// The three loaders fill one fresh rule record for one person, in this order; a record that was loaded before keeps its
// old bands. False after a reported failure: the record is then half filled, and nothing may be calculated with it.

// The company's work style.
[[nodiscard]] bool GetWorkStyle(const Context& context, Connection& connection, clsWorkTime& rules);
// The person's delays, close day and paid-leave balance.
[[nodiscard]] bool GetStaffInfo(const Context& context, Connection& connection, clsWorkTime& rules,
                                const QString& staff);
// The bands of the person's four kinds of day.
[[nodiscard]] bool GetWorkTime(const Context& context, Connection& connection, clsWorkTime& rules,
                               const QString& staff);

// The statement that reads the company's work style: one row, all of its fields.
[[nodiscard]] QString companyStyleStatement();

// The three without a report; they throw.
void readCompanyStyle(Connection& connection, clsWorkTime& rules);
void readStaffInfo(Connection& connection, clsWorkTime& rules, const QString& staff);
void readWorkTime(Connection& connection, clsWorkTime& rules, const QString& staff);

} // namespace kurbo
