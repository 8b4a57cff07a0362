#include "screen/grid/grid_model.h"

#include "screen/grid/grid_format.h"

namespace kurbo {
namespace {

// What a box of a yes/no column holds.
constexpr QStringView yes = u"-1";
constexpr QStringView no = u"0";

GridAlign alignOf(QChar sign) {
    return sign == u'^' ? GridAlign::Centre : sign == u'>' ? GridAlign::Right : GridAlign::Left;
}

} // namespace

void GridModel::reset(const Shape& shape) {
    Q_EMIT aboutToRefill();
    const bool otherShape = shape_ != shape || Rows() != shape.rows;
    if (otherShape) beginResetModel();
    shape_ = shape;
    columns_.assign(static_cast<std::size_t>(shape.columns), Column());
    rows_.assign(static_cast<std::size_t>(shape.rows), emptyRow());
    mergeHeadings_ = markEdits_ = false;
    if (otherShape) endResetModel();
    if (quiet_) return;
    Redraw(false);
    Redraw(true);
}

void GridModel::FormatString(const QString& headings) {
    const QStringList names = headings.split(u'|');
    for (int column = 0; column < names.size() && holds(0, column); ++column) {
        const QString& name = names[column];
        const bool aligned = name.startsWith(u'^') || name.startsWith(u'<') || name.startsWith(u'>');
        if (aligned) columnAt(column).align = alignOf(name.front());
        rowAt(0).cells[column] = aligned ? name.mid(1) : name;
    }
    lookChanged();
}

bool GridModel::holds(int row, int column) const {
    return row >= 0 && row < Rows() && column >= 0 && column < Cols();
}

GridModel::Row GridModel::emptyRow() const {
    return {.cells = QStringList(shape_.columns), .status = {}, .hidden = false, .look = {}, .looks = {}};
}

void GridModel::Rows(int rows) {
    if (rows > Rows()) {
        beginInsertRows({}, Rows(), rows - 1);
        rows_.resize(static_cast<std::size_t>(rows), emptyRow());
        endInsertRows();
    } else if (rows < Rows()) {
        beginRemoveRows({}, rows, Rows() - 1);
        rows_.resize(static_cast<std::size_t>(rows));
        endRemoveRows();
    }
}

void GridModel::AddItem(int row) {
    if (row < shape_.fixedRows || row > Rows()) return;
    beginInsertRows({}, row, row);
    rows_.insert(rows_.begin() + row, emptyRow());
    endInsertRows();
}

void GridModel::RemoveItem(int row) {
    if (row < shape_.fixedRows || row >= Rows()) return;
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

QString GridModel::TextMatrix(int row, int column) const {
    return holds(row, column) ? rowAt(row).cells[column] : QString();
}

void GridModel::TextMatrix(int row, int column, const QString& text) {
    write(row, column, text, GridStatus::Updated);
}

// A row that the person has changed stays marked so.
void GridModel::write(int row, int column, const QString& text, GridStatus status) {
    if (!holds(row, column)) return;
    Row& target = rowAt(row);
    if (target.cells[column] == text) return;
    target.cells[column] = text;
    target.status = std::max(target.status, status);
    changed(row, column);
    statusChanged(row, row);
    if (row < shape_.fixedRows) lookChanged();
}

void GridModel::changed(int row, int column) {
    if (!quiet_) Q_EMIT dataChanged(index(row, column), index(row, column));
}

void GridModel::lookChanged() {
    if (!quiet_) Q_EMIT looksChanged();
}

void GridModel::fillRow(int row, const QStringList& cells) {
    if (!holds(row, 0) || cells.size() != Cols()) return;
    rowAt(row).cells = cells;
    if (!quiet_) Q_EMIT dataChanged(index(row, 0), index(row, Cols() - 1));
}

QString GridModel::CellText(int row, int column) const {
    const QString held = TextMatrix(row, column);
    if (held.isEmpty() || row < shape_.fixedRows) return held;
    const Column& own = columnAt(column);
    return own.list.isEmpty() ? formatted(held, own.format) : own.list.textOf(held);
}

bool GridModel::CellChecked(int row, int column) const {
    const QString held = TextMatrix(row, column);
    return !held.isEmpty() && held != no;
}

void GridModel::CellChecked(int row, int column, bool checked) {
    TextMatrix(row, column, (checked ? yes : no).toString());
}

void GridModel::edit(int row, int column, const QString& text) {
    if (!Editable(row, column)) return;
    const QString trimmed = text.trimmed();
    // An editor that is left as it was opened changes nothing, also where less is shown than is held.
    if (!trimmed.isEmpty() && trimmed == CellText(row, column)) return;
    const GridList& list = columnAt(column).list;
    const QString held = list.isEmpty() ? trimmed : list.codeOf(trimmed);
    if (held == TextMatrix(row, column)) return;
    write(row, column, held, GridStatus::Modified);
    rules_->edited(row, column);
}

void GridModel::clear(int row, int column) {
    if (holds(row, column)) edit(row, column, columnAt(column).type == GridType::YesNo ? no.toString() : QString());
}

bool GridModel::Editable(int row, int column) const {
    return rules_ && holds(row, column) && row >= shape_.fixedRows && column >= shape_.fixedColumns &&
           rules_->mayEdit(row, column);
}

GridStatus GridModel::RowStatus(int row) const {
    return holds(row, 0) ? rowAt(row).status : GridStatus::None;
}

void GridModel::RowStatus(int row, GridStatus status) {
    if (!holds(row, 0)) return;
    rowAt(row).status = status;
    statusChanged(row, row);
}

void GridModel::clearRowStatus() {
    for (Row& row : rows_) row.status = GridStatus::None;
    statusChanged(0, Rows() - 1);
}

void GridModel::Redraw(bool redraw) {
    if (quiet_ != redraw) return;
    quiet_ = !redraw;
    if (quiet_) return;
    if (Rows() > 0 && Cols() > 0) Q_EMIT dataChanged(index(0, 0), index(Rows() - 1, Cols() - 1));
    Q_EMIT looksChanged();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Rows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !holds(index.row(), index.column())) return {};
    const auto colour = [](std::optional<GridColour> found) {
        return found ? QVariant::fromValue(*found) : QVariant();
    };
    const bool box = columnAt(index.column()).type == GridType::YesNo && index.row() >= shape_.fixedRows;
    switch (role) {
    case Qt::DisplayRole:
        return box ? QVariant() : CellText(index.row(), index.column());
    case Qt::EditRole:
        return TextMatrix(index.row(), index.column());
    case Qt::CheckStateRole:
        return box ? QVariant(CellChecked(index.row(), index.column()) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case ForeColourRole:
        return colour(CellForeColor(index.row(), index.column()));
    case BackColourRole:
        return colour(CellBackColor(index.row(), index.column()));
    case AlignRole:
        return static_cast<int>(columnAt(index.column()).align);
    default:
        return {};
    }
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || !Editable(index.row(), index.column())) return false;
    if (role == Qt::CheckStateRole)
        edit(index.row(), index.column(), (value.toInt() == Qt::Checked ? yes : no).toString());
    else if (role == Qt::EditRole)
        edit(index.row(), index.column(), value.toString());
    return role == Qt::CheckStateRole || role == Qt::EditRole;
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags seen = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (!Editable(index.row(), index.column())) return seen;
    const bool box = columnAt(index.column()).type == GridType::YesNo;
    return seen | (box ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

} // namespace kurbo
