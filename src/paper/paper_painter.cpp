#include "paper/paper_painter.h"

#include <QPainter>

#include <algorithm>

namespace kurbo {
namespace {

constexpr int rule = 7;
// Left free at both sides of a text.
constexpr int besideText = 50;
const QColor ruleColour(150, 158, 168);

QColor colourOf(GridColour colour) {
    return {colour.red, colour.green, colour.blue};
}

} // namespace

QStringList japaneseFamilies() {
    return {QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Noto Sans JP"), QStringLiteral("IPAPGothic"),
            QStringLiteral("sans-serif")};
}

void PaperPainter::paint(const PaperPage& page) {
    for (const PaperItem& item : page)
        if (item.fill) painter_.fillRect(placeOf(item), colourOf(*item.fill));
    painter_.setPen(QPen(ruleColour, std::max(1, dots(rule))));
    for (const PaperItem& item : page)
        if (item.edges != NoEdge) paintEdges(item);
    current_ = nullptr;
    for (const PaperItem& item : page)
        if (!item.text.isEmpty()) paintText(item);
}

int PaperPainter::dots(int twips) const {
    return static_cast<int>((static_cast<qint64>(twips) * dotsPerInch_ + twipsPerInch / 2) / twipsPerInch);
}

// Neighbours share the dots of their edge at every size.
QRect PaperPainter::placeOf(const PaperItem& item) const {
    const int left = dots(item.left);
    const int top = dots(item.top);
    return {left, top, dots(item.right()) - left, dots(item.bottom()) - top};
}

PaperPainter::Type& PaperPainter::typeOf(const PaperItem& item) {
    auto& type = types_[{item.fontSize, item.bold}];
    if (!type) {
        QFont font;
        font.setFamilies(japaneseFamilies());
        font.setPixelSize(std::max(1, dots(item.fontSize)));
        font.setBold(item.bold);
        // Glyphs that only shaping brings in have no letter of their own: a PDF's text couldn't be searched.
        font.setStyleStrategy(QFont::PreferNoShaping);
        font.setKerning(false);
        type = std::make_unique<Type>(Type{font, QFontMetrics(font, painter_.device()), {}});
    }
    return *type;
}

int PaperPainter::widthOf(Type& type, const QString& text) {
    const auto known = type.widths.constFind(text);
    if (known != type.widths.cend()) return *known;
    return *type.widths.insert(text, type.metrics.horizontalAdvance(text));
}

void PaperPainter::paintEdges(const PaperItem& item) {
    const QRect place = placeOf(item);
    const int right = place.x() + place.width();
    const int bottom = place.y() + place.height();
    if (item.edges == AllEdges) return painter_.drawRect(QRect(place.topLeft(), QPoint(right - 1, bottom - 1)));
    if (item.edges & LeftEdge) painter_.drawLine(place.x(), place.y(), place.x(), bottom);
    if (item.edges & RightEdge) painter_.drawLine(right, place.y(), right, bottom);
    if (item.edges & TopEdge) painter_.drawLine(place.x(), place.y(), right, place.y());
    if (item.edges & BottomEdge) painter_.drawLine(place.x(), bottom, right, bottom);
}

void PaperPainter::paintText(const PaperItem& item) {
    Type& type = typeOf(item);
    if (&type != current_) painter_.setFont(type.font);
    current_ = &type;
    painter_.setPen(colourOf(item.fore));
    const int beside = std::min(dots(besideText), dots(item.width) / 10);
    const QRect place = placeOf(item).adjusted(beside, 0, -beside, 0);
    const int width = widthOf(type, item.text);
    const int base = place.y() + (place.height() + type.metrics.ascent() - type.metrics.descent()) / 2;
    if (width > place.width()) {
        painter_.save();
        painter_.translate(place.x(), base);
        painter_.scale(static_cast<qreal>(place.width()) / width, 1);
        painter_.drawText(0, 0, item.text);
        painter_.restore();
        return;
    }
    int left = place.x();
    if (item.align == GridAlign::Centre) left += (place.width() - width) / 2;
    if (item.align == GridAlign::Right) left += place.width() - width;
    painter_.drawText(left, base, item.text);
}

} // namespace kurbo
