#pragma once

#include <QStringList>

namespace kurbo {

enum class Exit { Done = 0, Refused = 1, WrongUse = 2, Fault = 3 };

// One command each. `arguments` stands behind the command's name; failures are thrown.
[[nodiscard]] Exit runNew(const QStringList& arguments);
[[nodiscard]] Exit runDemo(const QStringList& arguments);
[[nodiscard]] Exit runSql(const QStringList& arguments);
[[nodiscard]] Exit runPunch(const QStringList& arguments);
[[nodiscard]] Exit runCheck(const QStringList& arguments);
[[nodiscard]] Exit runCompact(const QStringList& arguments);

// Complains when there is something under the name of a file to be made.
void refuseExisting(const QString& path);

} // namespace kurbo
