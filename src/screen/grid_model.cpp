#include "screen/grid_model.h"

namespace kurbo {

void GridModel::reset(int rows, int columns, int fixedRows) {
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    fixedRows_ = fixedRows;
    texts_ = QList<QString>(qsizetype{rows} * columns);
    lists_.clear();
    colours_.clear();
    hiddenRows_.clear();
    hiddenColumns_.clear();
    endResetModel();
}

bool GridModel::holds(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
}

QString GridModel::text(int row, int column) const {
    return holds(row, column) ? texts_[at(row, column)] : QString();
}

void GridModel::setText(int row, int column, const QString& text) {
    if (!holds(row, column) || texts_[at(row, column)] == text) return;
    texts_[at(row, column)] = text;
    Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DisplayRole, Qt::EditRole});
}

QString GridModel::shownText(int row, int column) const {
    const QString held = text(row, column);
    if (row < fixedRows_) return held;
    const auto list = lists_.constFind(column);
    return list == lists_.cend() ? held : list->value(held, held);
}

void GridModel::setComboList(int column, const QString& list) {
    QHash<QString, QString> shown;
    for (const QString& entry : list.split(u'|', Qt::SkipEmptyParts))
        if (entry.startsWith(u'#')) shown.insert(entry.mid(1).section(u';', 0, 0), entry.section(u';', 1));
    lists_.insert(column, shown);
    if (rows_ > 0 && holds(0, column)) Q_EMIT dataChanged(index(0, column), index(rows_ - 1, column));
}

void GridModel::setColour(int row, int column, std::optional<GridColour> colour) {
    if (!holds(row, column)) return;
    if (colour)
        colours_.insert(at(row, column), *colour);
    else
        colours_.remove(at(row, column));
    Q_EMIT dataChanged(index(row, column), index(row, column), {ColourRole});
}

std::optional<GridColour> GridModel::colour(int row, int column) const {
    const auto found = colours_.constFind(at(row, column));
    return holds(row, column) && found != colours_.cend() ? std::optional(*found) : std::nullopt;
}

void GridModel::setRowHidden(int row, bool hidden) {
    hiddenRows_.insert(row, hidden);
    Q_EMIT hiddenChanged();
}

void GridModel::setColumnHidden(int column, bool hidden) {
    hiddenColumns_.insert(column, hidden);
    Q_EMIT hiddenChanged();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !holds(index.row(), index.column())) return {};
    switch (role) {
    case Qt::DisplayRole:
        return shownText(index.row(), index.column());
    case Qt::EditRole:
        return text(index.row(), index.column());
    case ColourRole: {
        const auto found = colour(index.row(), index.column());
        return found ? QVariant::fromValue(*found) : QVariant();
    }
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return text(0, section);
}

} // namespace kurbo
