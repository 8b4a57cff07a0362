#include "screen/grid/grid_header.h"

#include "screen/grid/grid_model.h"

#include <QPainter>

namespace kurbo {

GridHeader::GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    constexpr int least = 12;
    setMinimumSectionSize(least);
    setSectionResizeMode(QHeaderView::Interactive);
    setHighlightSections(false);
    setSectionsClickable(true);
}

QSize GridHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), rowHeight_ * (grid_ ? std::max(grid_->FixedRows(), 1) : 1)};
}

bool GridHeader::areOne(int row, int column, int otherRow, int otherColumn) const {
    return grid_->MergeHeadings() && !grid_->ColHidden(otherColumn) && !grid_->TextMatrix(row, column).isEmpty() &&
           grid_->TextMatrix(row, column) == grid_->TextMatrix(otherRow, otherColumn);
}

QRect GridHeader::cell(int row, int column) const {
    return {sectionViewportPosition(column), row * rowHeight_, sectionSize(column), rowHeight_};
}

QRect GridHeader::merged(int row, int column) const {
    QRect all = cell(row, column);
    for (int left = column - 1; left >= 0 && areOne(row, column, row, left); --left) all |= cell(row, left);
    for (int right = column + 1; right < count() && areOne(row, column, row, right); ++right) all |= cell(row, right);
    for (int above = row - 1; above >= 0 && areOne(row, column, above, column); --above) all |= cell(above, column);
    for (int below = row + 1; below < grid_->FixedRows() && areOne(row, column, below, column); ++below)
        all |= cell(below, column);
    return all;
}

// Each section paints its part of the merged cells.
void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    if (!grid_ || !rect.isValid()) return;
    painter->save();
    painter->setClipRect(rect);
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = section;
    option.textAlignment = Qt::AlignCenter;
    for (int row = 0; row < grid_->FixedRows(); ++row) {
        option.rect = merged(row, section);
        option.text = grid_->TextMatrix(row, section);
        style()->drawControl(QStyle::CE_Header, &option, painter, this);
    }
    painter->restore();
}

} // namespace kurbo
