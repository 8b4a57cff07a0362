#pragma once

#include "ctl/console.h"

#include <QStringList>

namespace kurbo {

// One command each. `arguments` stands behind the command's name; failures are thrown.
[[nodiscard]] Exit runNew(const QStringList& arguments);
[[nodiscard]] Exit runDemo(const QStringList& arguments);
[[nodiscard]] Exit runCard(const QStringList& arguments);
[[nodiscard]] Exit runTotals(const QStringList& arguments);
[[nodiscard]] Exit runExport(const QStringList& arguments);
[[nodiscard]] Exit runImport(const QStringList& arguments);
[[nodiscard]] Exit runMove(const QStringList& arguments);
[[nodiscard]] Exit runReport(const QStringList& arguments);
[[nodiscard]] Exit runSql(const QStringList& arguments);
[[nodiscard]] Exit runPunch(const QStringList& arguments);
[[nodiscard]] Exit runCheck(const QStringList& arguments);
[[nodiscard]] Exit runHolidays(const QStringList& arguments);
[[nodiscard]] Exit runCompact(const QStringList& arguments);

// Complains when there is something under the name of a file to be made.
void refuseExisting(const QString& path);

} // namespace kurbo
