// How a grid's rows and columns look and what they take.

#include "screen/grid/grid_model.h"

namespace kurbo {

void GridModel::ColComboList(int column, const QString& list) {
    columnAt(column).list = GridList(list);
    lookChanged();
}

const GridList& GridModel::ColComboList(int column) const {
    return columnAt(column).list;
}

void GridModel::ColFormat(int column, const QString& format) {
    columnAt(column).format = format;
    lookChanged();
}

QString GridModel::ColFormat(int column) const {
    return columnAt(column).format;
}

void GridModel::ColEditMask(int column, const QString& mask) {
    columnAt(column).mask = mask;
}

QString GridModel::ColEditMask(int column) const {
    return columnAt(column).mask;
}

void GridModel::ColDataType(int column, GridType type) {
    columnAt(column).type = type;
    lookChanged();
}

GridType GridModel::ColDataType(int column) const {
    return columnAt(column).type;
}

void GridModel::ColAlignment(int column, GridAlign align) {
    columnAt(column).align = align;
    lookChanged();
}

GridAlign GridModel::ColAlignment(int column) const {
    return columnAt(column).align;
}

void GridModel::ColWidth(int column, Twips width) {
    columnAt(column).width = width;
    lookChanged();
}

Twips GridModel::ColWidth(int column) const {
    return columnAt(column).width;
}

void GridModel::ColHidden(int column, bool hidden) {
    columnAt(column).hidden = hidden;
    lookChanged();
}

bool GridModel::ColHidden(int column) const {
    return column >= 0 && column < Cols() && columnAt(column).hidden;
}

void GridModel::RowHidden(int row, bool hidden) {
    if (!holds(row, 0)) return;
    rowAt(row).hidden = hidden;
    lookChanged();
}

bool GridModel::RowHidden(int row) const {
    return holds(row, 0) && rowAt(row).hidden;
}

void GridModel::MergeHeadings(bool merge) {
    mergeHeadings_ = merge;
    lookChanged();
}

void GridModel::MarkEdits(bool mark) {
    markEdits_ = mark;
    statusChanged(0, Rows() - 1);
}

void GridModel::statusChanged(int first, int last) {
    if (markEdits_ && !quiet_ && last >= first) Q_EMIT headerDataChanged(Qt::Vertical, first, last);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Horizontal) return TextMatrix(0, section);
    const bool marked = markEdits_ && RowStatus(section) == GridStatus::Modified;
    return marked ? u'*' + TextMatrix(section, 0) : TextMatrix(section, 0);
}

void GridModel::CellForeColor(int row, int column, std::optional<GridColour> colour) {
    if (!holds(row, column)) return;
    rowAt(row).looks[column].fore = colour;
    changed(row, column);
}

void GridModel::CellBackColor(int row, int column, std::optional<GridColour> colour) {
    if (!holds(row, column)) return;
    rowAt(row).looks[column].back = colour;
    changed(row, column);
}

void GridModel::RowForeColor(int row, std::optional<GridColour> colour) {
    if (!holds(row, 0)) return;
    rowAt(row).look.fore = colour;
    if (!quiet_) Q_EMIT dataChanged(index(row, 0), index(row, Cols() - 1));
}

void GridModel::RowBackColor(int row, std::optional<GridColour> colour) {
    if (!holds(row, 0)) return;
    rowAt(row).look.back = colour;
    if (!quiet_) Q_EMIT dataChanged(index(row, 0), index(row, Cols() - 1));
}

// A cell's own colour counts before its row's.
std::optional<GridColour> GridModel::colourOf(int row, int column, std::optional<GridColour> Look::*part) const {
    if (!holds(row, column)) return {};
    const Row& own = rowAt(row);
    const auto cell = own.looks.constFind(column);
    return cell != own.looks.cend() && (*cell).*part ? (*cell).*part : own.look.*part;
}

std::optional<GridColour> GridModel::CellForeColor(int row, int column) const {
    return colourOf(row, column, &Look::fore);
}

std::optional<GridColour> GridModel::CellBackColor(int row, int column) const {
    return colourOf(row, column, &Look::back);
}

std::optional<GridColour> GridModel::RowForeColor(int row) const {
    return holds(row, 0) ? rowAt(row).look.fore : std::nullopt;
}

std::optional<GridColour> GridModel::RowBackColor(int row) const {
    return holds(row, 0) ? rowAt(row).look.back : std::nullopt;
}

} // namespace kurbo
