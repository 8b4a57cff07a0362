#pragma once

#include "base/day.h"

#include <QString>

#include <cstdint>

namespace kurbo {

struct ErrorRecord {
    Day date;
    QString module;
    QString procedure;
    QString source;
    std::int64_t number = 0;
    QString description;
};

// Appends one record to the file "Error.log" of `folder`, in the code page, ended by CR LF. Double quotes inside a
// text stand as they are. A log that can't be written is passed over in silence: it never stops the program.
void LogError(const QString& folder, const ErrorRecord& record) noexcept;

} // namespace kurbo
