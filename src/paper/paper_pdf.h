#pragma once

#include "base/progress.h"
#include "paper/paper.h"

#include <QPageLayout>

class QPagedPaintDevice;

namespace kurbo {

// Counted from 0, both included.
struct PageRange {
    int first = 0;
    int last = 0;
};

// The document's own sheet, without margins.
[[nodiscard]] QPageLayout layoutOf(PaperSize paper);

// Paints pages on a device that takes them without margins; they are made smaller for a smaller sheet. Shows its
// progress; false when the person has closed that. Throws a Fault when the device takes no page.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, const PaperDocument& document, PageRange range,
                              Progress& progress);

// Pages on sheets of that layout in place of the file, in one step and with their letters; false, and the old file as
// it was, when the person has closed the progress. A link stays: what it leads to is replaced. Throws a Complaint for
// what is there and no file, else a Fault.
[[nodiscard]] bool writePdf(const PaperDocument& document, PageRange range, QPageLayout layout, const QString& path,
                            Progress& progress);
// The whole document on its own sheets.
[[nodiscard]] bool writePdf(const PaperDocument& document, const QString& path, Progress& progress);

} // namespace kurbo
