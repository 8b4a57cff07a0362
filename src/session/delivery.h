#pragma once

#include "base/system/paths.h"

namespace kurbo {

// Puts what is delivered in `shareFolder` into an application folder: the help files, also over older ones, and
// "Holiday.txt" where there is none, as one that is there is the company's own. A delivered "Holiday.txt" of another
// year than `year` gives way to one that is made. What can't be written stays as it is.
void deliverFiles(const QString& shareFolder, const Paths& paths, int year);

} // namespace kurbo
