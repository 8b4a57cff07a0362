#include "paper/paper_pdf.h"

#include "base/failure.h"
#include "base/files.h"
#include "base/product.h"
#include "paper/paper_painter.h"
#include "paper/pdf_letters.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

namespace kurbo {

bool paintPages(QPagedPaintDevice& device, const PaperDocument& document, PageRange range, Progress& progress) {
    const Fault noPage(static_cast<std::int64_t>(FileError::DeviceIo), QStringLiteral("paintPages"),
                       QStringLiteral("印刷できませんでした。"));
    const Shown shown(progress, QStringLiteral("印刷中です・・・"), range.last - range.first + 1);
    QPainter painter;
    if (!painter.begin(&device)) throw noPage;
    PaperPainter paper(painter, device.logicalDpiX());
    for (int index = range.first; index <= range.last; ++index) {
        if (progress.stopped()) return false;
        if (index > range.first && !device.newPage()) throw noPage;
        paper.paint(document.page(index));
        progress.step(index - range.first + 1);
    }
    if (!painter.end()) throw noPage;
    return true;
}

bool writePdf(const PaperDocument& document, const QString& path, Progress& progress) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        const PaperSize paper = document.paper();
        pdf.setTitle(document.Caption());
        pdf.setCreator(productName());
        pdf.setResolution(twipsPerInch);
        const bool lying = paper.width > paper.height;
        pdf.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), lying ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
        if (!paintPages(pdf, document, {0, document.pageCount() - 1}, progress)) return false;
    }
    nameLetters(bytes.buffer());
    replaceFile(path, bytes.data());
    return true;
}

} // namespace kurbo
