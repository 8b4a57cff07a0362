#pragma once

#include "base/paths.h"

namespace kurbo {

// Puts what is delivered in `shareFolder` into an application folder: "Holiday.txt" where there is none, as one that is
// there is the company's own, and the help files also over older ones. What is not delivered, and what can't be
// written, stays as it is.
void deliverFiles(const QString& shareFolder, const Paths& paths);

} // namespace kurbo
