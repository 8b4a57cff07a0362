#pragma once

#include "ctl/options.h"
#include "store/file/optimize_db.h"

namespace kurbo {

// One file each. What they run throws its failures.
extern const Command newCommand;
extern const Command demoCommand;
extern const Command cardCommand;
extern const Command totalsCommand;
extern const Command reportCommand;
extern const Command exportCommand;
extern const Command importCommand;
extern const Command moveCommand;
extern const Command sqlCommand;
extern const Command punchCommand;
extern const Command checkCommand;
extern const Command compactCommand;
extern const Command holidaysCommand;

// Complains when there is something under the name of a file to be made.
void refuseExisting(const QString& path);
// The word by which the result of a compaction is printed.
[[nodiscard]] QString wordOf(OptimizeResult result);

} // namespace kurbo
