#pragma once

#include "base/guard.h"
#include "store/file/exclusive.h"

#include <QString>

namespace kurbo {

// How a compaction ends. On all but OK the database is as it was.
enum class OptimizeResult {
    OK,
    NoFile,
    NoDrive,
    NoPath,
    NotMdb,
    Opened,   // another program has the file
    ExistLdb, // a client is connected, or has left its lock file
    Error,    // after the standard box and log line
};

// Compacts a database in place; every connection of this process must be closed. The new file is written beside the
// old one under ".bak", checked, and put in its place by one rename: there is a whole database at every instant, and
// no client gets in between.
[[nodiscard]] OptimizeResult OptimizeDB(const Context& context, const QString& path, const QString& password);

// The same for a caller who goes on with the database: after OK it is his alone until he leaves `lock`, which is
// given free. `notice` runs now and then meanwhile.
[[nodiscard]] OptimizeResult OptimizeDB(const Context& context, const QString& path, const QString& password,
                                        LockFile& lock, const WorkNotice& notice);

} // namespace kurbo
