#pragma once

#include "base/progress.h"
#include "paper/paper.h"

class QPagedPaintDevice;

namespace kurbo {

// Counted from 0, both included.
struct PageRange {
    int first = 0;
    int last = 0;
};

// Paints pages on a device that takes them without margins. Shows its progress; false when the person has closed that.
// Throws a Fault when the device takes no page.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, const PaperDocument& document, PageRange range,
                              Progress& progress);

// The whole document in place of the file, in one step and with its letters; false, and the old file as it was, when
// the person has closed the progress. Throws a Fault.
[[nodiscard]] bool writePdf(const PaperDocument& document, const QString& path, Progress& progress);

} // namespace kurbo
