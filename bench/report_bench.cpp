// The totals of a year of a section of 200 people on paper: from the filled grid to the first page on a screen, and all
// pages as a PDF, against the same texts written in the same places by QPainter::drawText and nothing else. In turn, so
// that a busy machine slows both.

#include "bench_company.h"

#include "paper/paper_painter.h"
#include "paper/paper_pdf.h"
#include "totals/rptTotal.h"
#include "totals/total_sheet.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int people = 200;
constexpr int months = 12;
constexpr int rounds = 11;
// As the preview shows a page.
constexpr int screenDots = 114;
const TotalHeading heading{QStringLiteral("2026/01"), QStringLiteral("2026/12"), {}, {}};

Totals makeYear() {
    Totals totals;
    for (int person = 0; person < people; ++person)
        for (unsigned month = 1; month <= months; ++month) {
            TotalRow row;
            row.staff = staffCode(person);
            row.name = QStringLiteral("社員　番号%1").arg(person);
            row.month = std::chrono::year(2026) / std::chrono::month(month);
            for (std::size_t i = 0; i < quantityCount; ++i)
                row.figures[i] =
                    Minutes((person * 37 + static_cast<int>(month) * 101 + static_cast<int>(i) * 13) % 3000);
            totals.rows.push_back(row);
        }
    return totals;
}

QFont fontOf(const PaperItem& item, int dots) {
    QFont font;
    font.setFamilies(japaneseFamilies());
    font.setPixelSize(item.fontSize * dots / twipsPerInch);
    font.setBold(item.bold);
    return font;
}

using Pages = std::vector<PaperPage>;

Pages pagesOf(const PaperDocument& document) {
    Pages pages;
    for (int i = 0; i < document.pageCount(); ++i) pages.push_back(document.page(i));
    return pages;
}

void writeBare(QPainter& painter, const PaperPage& page, int dots) {
    const PaperItem* before = nullptr;
    for (const PaperItem& item : page) {
        if (item.text.isEmpty()) continue;
        if (!before || before->fontSize != item.fontSize || before->bold != item.bold)
            painter.setFont(fontOf(item, dots));
        before = &item;
        const auto scaled = [dots](int twips) { return twips * dots / twipsPerInch; };
        painter.drawText(QRect(scaled(item.left), scaled(item.top), scaled(item.width), scaled(item.height)),
                         static_cast<int>(Qt::AlignRight) | Qt::AlignVCenter | Qt::TextSingleLine, item.text);
    }
}

double bareFirst(const Pages& pages) {
    QImage image(a4Landscape.width * screenDots / twipsPerInch, a4Landscape.height * screenDots / twipsPerInch,
                 QImage::Format_RGB32);
    return timed([&] {
        image.fill(Qt::white);
        QPainter painter(&image);
        writeBare(painter, pages.front(), screenDots);
    });
}

double ownFirst(const TotalSheet& sheet) {
    QImage image(a4Landscape.width * screenDots / twipsPerInch, a4Landscape.height * screenDots / twipsPerInch,
                 QImage::Format_RGB32);
    return timed([&] {
        const rptTotal report(sheet, heading, *makeDay(2026, 4, 15));
        image.fill(Qt::white);
        QPainter painter(&image);
        PaperPainter(painter, screenDots).paint(report.page(0));
    });
}

double bareAll(const Pages& pages) {
    return timed([&] {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&bytes);
        pdf.setResolution(twipsPerInch);
        pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()));
        QPainter painter(&pdf);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            if (i > 0) pdf.newPage();
            writeBare(painter, pages[i], twipsPerInch);
        }
    });
}

double ownAll(const TotalSheet& sheet, const QString& file) {
    NoProgress progress;
    return timed([&] { (void)writePdf(rptTotal(sheet, heading, *makeDay(2026, 4, 15)), file, progress); });
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    TotalSheet sheet;
    sheet.show(makeYear());
    const Pages pages = pagesOf(rptTotal(sheet, heading, *makeDay(2026, 4, 15)));
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("year.pdf"));
    Samples first;
    Samples firstBare;
    Samples all;
    Samples allBare;
    for (int round = 0; round < rounds; ++round) {
        firstBare.add(bareFirst(pages));
        first.add(ownFirst(sheet));
        allBare.add(bareAll(pages));
        all.add(ownAll(sheet, file));
    }
    std::printf("first page of %d: %.1f ms, bare %.1f ms, ratio %.2f\n", static_cast<int>(pages.size()),
                first.at(50) / 1000, firstBare.at(50) / 1000, first.at(50) / firstBare.at(50));
    std::printf("all pages as a PDF: %.0f ms, bare %.0f ms, ratio %.2f\n", all.at(50) / 1000, allBare.at(50) / 1000,
                all.at(50) / allBare.at(50));
    return 0;
}
