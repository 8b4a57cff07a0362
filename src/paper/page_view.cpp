#include "paper/page_view.h"

#include "paper/paper_painter.h"

#include <QPainter>

#include <algorithm>

namespace kurbo {
namespace {

// Around the sheet.
constexpr int edge = 8;

int dots(int twips, int dotsPerInch) {
    return static_cast<int>(static_cast<qint64>(twips) * dotsPerInch / twipsPerInch);
}

} // namespace

PageView::PageView(const PaperDocument& document, QWidget* parent) : QWidget(parent), document_(document) {}

int PageView::fitting(QSize room, bool whole) const {
    const PaperSize paper = document_.paper();
    const int across = (room.width() - 2 * edge) * twipsPerInch / paper.width;
    const int down = (room.height() - 2 * edge) * twipsPerInch / paper.height;
    return std::max(1, whole ? std::min(across, down) : across);
}

void PageView::show(int page, int dotsPerInch) {
    if (page == page_ && dotsPerInch == dotsPerInch_) return;
    page_ = page;
    dotsPerInch_ = dotsPerInch;
    picture_ = QPixmap();
    const PaperSize paper = document_.paper();
    setFixedSize(dots(paper.width, dotsPerInch) + 2 * edge, dots(paper.height, dotsPerInch) + 2 * edge);
    update();
}

void PageView::draw() {
    ratio_ = devicePixelRatioF();
    picture_ = QPixmap((size() - QSize(2 * edge, 2 * edge)) * ratio_);
    picture_.fill(Qt::white);
    QPainter painter(&picture_);
    painter.setRenderHint(QPainter::TextAntialiasing);
    PaperPainter(painter, static_cast<int>(dotsPerInch_ * ratio_)).paint(document_.page(page_));
    painter.end();
    picture_.setDevicePixelRatio(ratio_);
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    if (page_ < 0) return;
    if (picture_.isNull() || ratio_ != devicePixelRatioF()) draw();
    constexpr int shadow = 3;
    const QRect sheet = rect().adjusted(edge, edge, -edge, -edge);
    QPainter painter(this);
    painter.fillRect(sheet.translated(shadow, shadow), QColor(120, 126, 134));
    painter.drawPixmap(sheet.topLeft(), picture_);
}

} // namespace kurbo
