#pragma once

#include "base/progress.h"
#include "screen/paper.h"

class QPagedPaintDevice;

namespace kurbo {

// Paints all pages on a device whose resolution is `dotsPerInch`, from `first` to `last`, counted from 0. Shows its
// progress; false when the person has closed that. Throws a Fault when the device takes no page.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, int dotsPerInch, const PaperDocument& document, int first,
                              int last, Progress& progress);

// The whole document in place of the file, in one step and with its letters; false, and the old file as it was, when
// the person has closed the progress. Throws a Fault.
[[nodiscard]] bool writePdf(const PaperDocument& document, const QString& path, Progress& progress);

} // namespace kurbo
