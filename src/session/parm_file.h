#pragma once

#include "base/guard.h"

#include <QString>

namespace kurbo {

// The file "Parm.dat" holds one item, the path of the home database, between double quotes and ended by CR LF, in the
// code page.

enum class ParmResult {
    OK,           // read, and the database is there
    NoDB,         // read, and the database is not there
    Install,      // the path is empty
    NoParm,       // no such file
    InputPastEnd, // the file is empty
    Error,        // after the report
};

// Reads the path into `dbPath`.
[[nodiscard]] ParmResult ReadParm(const Context& context, const QString& path, QString& dbPath);
// Replaces the file in one step; false after the report.
[[nodiscard]] bool WriteParm(const Context& context, const QString& path, const QString& dbPath);

} // namespace kurbo
