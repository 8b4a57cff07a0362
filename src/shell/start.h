#pragma once

#include "base/clock.h"

#include <QString>

namespace kurbo {

// Runs the client in an application folder from its start to its end; gives the process's exit status. Another client
// that runs in the same folder on this machine is left alone, and this one ends.
[[nodiscard]] int runClient(const QString& appFolder, const Clock& clock);

} // namespace kurbo
