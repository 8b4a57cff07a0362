#include "paper/paper_pdf.h"

#include "base/failure.h"
#include "base/product.h"
#include "base/system/files.h"
#include "paper/paper_painter.h"
#include "paper/pdf_letters.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cerrno>

namespace kurbo {

namespace {

// How many dots an inch of the document gets, so that all between its margins lies between the sheet's.
int dotsPerInchOn(const QPagedPaintDevice& device, PaperSize paper) {
    const QSize sheet = device.pageLayout().fullRectPixels(twipsPerInch).size();
    const auto fitting = [dots = device.logicalDpiX()](int room, int needed) {
        return static_cast<int>(static_cast<qint64>(dots) * std::clamp(room, 1, needed) / needed);
    };
    constexpr int margins = 2 * paperMargin;
    return std::max(1, std::min(fitting(sheet.width() - margins, paper.width - margins),
                                fitting(sheet.height() - margins, paper.height - margins)));
}

// Margins aren't made smaller with the rest: the printer can't reach further.
void moveInto(QPainter& painter, int dotsPerInch) {
    const int missing = painter.device()->logicalDpiX() - dotsPerInch;
    const int by = static_cast<int>(static_cast<qint64>(paperMargin) * missing / twipsPerInch);
    painter.translate(by, by);
}

} // namespace

QPageLayout layoutOf(PaperSize paper) {
    const bool lying = paper.width > paper.height;
    return {QPageSize(QPageSize::A4), lying ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

bool paintPages(QPagedPaintDevice& device, const PaperDocument& document, PageRange range, Progress& progress) {
    const Fault noPage(static_cast<std::int64_t>(FileError::DeviceIo), QStringLiteral("paintPages"),
                       QStringLiteral("印刷できませんでした。"));
    const Shown shown(progress, QStringLiteral("印刷中です・・・"), range.last - range.first + 1);
    QPainter painter;
    if (!painter.begin(&device)) throw noPage;
    const int dotsPerInch = dotsPerInchOn(device, document.paper());
    moveInto(painter, dotsPerInch);
    PaperPainter paper(painter, dotsPerInch);
    for (int index = range.first; index <= range.last; ++index) {
        if (progress.stopped()) return false;
        if (index > range.first && !device.newPage()) throw noPage;
        paper.paint(document.page(index));
        progress.step(index - range.first + 1);
    }
    if (!painter.end()) throw noPage;
    return true;
}

bool writePdf(const PaperDocument& document, PageRange range, QPageLayout layout, const QString& path,
              Progress& progress) {
    const QString target = chosenFile(path);
    // Told before all the pages are made.
    const QFileInfo info(target);
    if (!info.absoluteDir().exists()) throw fileFault(ENOTDIR, info.absolutePath());
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        pdf.setTitle(document.Caption());
        pdf.setCreator(productName());
        pdf.setResolution(twipsPerInch);
        layout.setMode(QPageLayout::FullPageMode);
        pdf.setPageLayout(layout);
        if (!paintPages(pdf, document, range, progress)) return false;
    }
    nameLetters(bytes.buffer());
    replaceFile(target, bytes.data());
    return true;
}

bool writePdf(const PaperDocument& document, const QString& path, Progress& progress) {
    return writePdf(document, {0, document.pageCount() - 1}, layoutOf(document.paper()), path, progress);
}

} // namespace kurbo
