#pragma once

#include "base/prompts.h"

namespace kurbo {

// Opens the help file in the system's viewer, or says that it is missing.
void openHelp(Prompts& prompts, const QString& path);

} // namespace kurbo
