#include "paper/paper.h"

#include "base/product.h"

namespace kurbo {
namespace {

constexpr int footerHeight = 260;
constexpr GridColour quiet{.red = 90, .green = 90, .blue = 90};

} // namespace

int footerTop(PaperSize paper) {
    return paper.height - paperMargin - footerHeight;
}

void addFooter(PaperPage& page, PaperSize paper, int index, int pages, const QString& printedOn) {
    PaperItem item{.left = paperMargin,
                   .top = footerTop(paper),
                   .width = paper.width - 2 * paperMargin,
                   .height = footerHeight,
                   .text = productName(),
                   .fontSize = 160,
                   .fore = quiet};
    page.push_back(item);
    item.text = QStringLiteral("%1 / %2").arg(index + 1).arg(pages);
    item.align = GridAlign::Centre;
    page.push_back(item);
    item.text = QStringLiteral("印刷日：") + printedOn;
    item.align = GridAlign::Right;
    page.push_back(item);
}

} // namespace kurbo
