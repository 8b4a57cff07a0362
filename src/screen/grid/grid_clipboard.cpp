#include "screen/grid/grid_clipboard.h"

#include "base/day.h"
#include "base/failure.h"

#include <algorithm>
#include <array>
#include <functional>

namespace kurbo {
namespace {

constexpr QStringView lineEnd = u"\r\n";

void endLine(QString& text) {
    if (text.endsWith(u'\t')) text.replace(text.size() - 1, 1, lineEnd.toString());
}

// The fields of the text in one row after another.
struct Source {
    QStringList fields;
    int rows = 0;
    int columns = 0;

    [[nodiscard]] QString at(int row, int column) const { return fields.value(qsizetype{row} * columns + column); }
};

// Spreadsheets differ in how they end a line, and whether they end the last.
Source sourceOf(QString text) {
    text.replace(lineEnd.toString(), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (!text.endsWith(u'\n')) text += u'\n';
    Source source;
    source.rows = static_cast<int>(text.count(u'\n'));
    source.columns = static_cast<int>(text.left(text.indexOf(u'\n')).count(u'\t')) + 1;
    source.fields = text.chopped(1).replace(u'\n', u'\t').split(u'\t');
    return source;
}

using Visit = std::function<void(int row, int column, const QString& field)>;

// Every cell that takes a field of the source, fixed ones included.
void walk(const GridModel& grid, const GridSelection& cells, const Source& source, const Visit& visit) {
    for (int row = cells.top, from = 0; row <= cells.bottom && from < source.rows; ++row) {
        if (grid.RowHidden(row)) continue;
        for (int column = cells.left, field = 0; column <= cells.right && field < source.columns; ++column)
            if (!grid.ColHidden(column)) visit(row, column, source.at(from, field++));
        ++from;
    }
}

bool mayEditAny(const GridModel& grid, const GridSelection& cells) {
    for (int row = cells.top; row <= cells.bottom; ++row)
        for (int column = cells.left; column <= cells.right; ++column)
            if (!grid.RowHidden(row) && !grid.ColHidden(column) && grid.Editable(row, column)) return true;
    return false;
}

bool isFixed(const GridModel& grid, int row, int column) {
    return row < grid.FixedRows() || column < grid.FixedCols();
}

// True or false for a word of a yes/no column; nothing for any other.
std::optional<bool> yesNoWord(const QString& field) {
    constexpr std::array yes{u"TRUE", u"-1", u"YES", u"ON"};
    constexpr std::array no{u"FALSE", u"0", u"NO", u"OFF"};
    const QString word = field.toUpper();
    const auto is = [&word](const char16_t* known) { return word == QStringView(known); };
    if (std::ranges::any_of(yes, is)) return true;
    return std::ranges::any_of(no, is) ? std::optional(false) : std::nullopt;
}

bool fits(GridType type, const QString& field) {
    if (field.isEmpty() || type == GridType::Text) return true;
    if (type == GridType::YesNo) return yesNoWord(field).has_value();
    if (type == GridType::Date) return parseSlashMoment(field).has_value();
    QString digits = field;
    // Money is copied with its sign.
    if (type == GridType::Currency) digits.remove(u'¥');
    bool number = false;
    (void)digits.remove(u',').toDouble(&number);
    return number;
}

} // namespace

GridSelection withHeadings(const GridModel& grid, GridSelection selection) {
    if (selection.bottom == grid.Rows() - 1 && selection.top == grid.FixedRows()) selection.top = 0;
    if (selection.right == grid.Cols() - 1 && selection.left == grid.FixedCols()) selection.left = 0;
    return selection;
}

GridCopy copiedCells(const GridModel& grid, GridSelection selection) {
    const GridSelection cells = withHeadings(grid, selection);
    GridCopy copy;
    for (int row = cells.top; row <= cells.bottom; ++row) {
        if (grid.RowHidden(row)) continue;
        for (int column = cells.left; column <= cells.right; ++column) {
            if (grid.ColHidden(column)) continue;
            copy.shown += grid.CellText(row, column) + u'\t';
            copy.held += grid.TextMatrix(row, column) + u'\t';
        }
        endLine(copy.shown);
        endLine(copy.held);
    }
    return copy;
}

void pasteCells(GridModel& grid, GridSelection selection, const QString& text) {
    const GridSelection cells = withHeadings(grid, selection);
    const Source source = sourceOf(text);
    if (!mayEditAny(grid, selection)) throw Complaint(QStringLiteral("貼付先が編集不可の設定になっています。"));
    const Undrawn undrawn(grid);
    walk(grid, cells, source, [&](int row, int column, const QString& field) {
        if (!isFixed(grid, row, column) && !fits(grid.ColDataType(column), field))
            throw Complaint(QStringLiteral("貼付先のデータ型が異なります。"));
    });
    walk(grid, cells, source, [&](int row, int column, const QString& field) {
        const bool box = grid.ColDataType(column) == GridType::YesNo;
        if (isFixed(grid, row, column) || (box && field.isEmpty())) return;
        grid.edit(row, column, box ? QStringLiteral("%1").arg(*yesNoWord(field) ? -1 : 0) : field);
    });
}

void clearCells(GridModel& grid, GridSelection selection) {
    const Undrawn undrawn(grid);
    for (int row = selection.top; row <= selection.bottom; ++row)
        for (int column = selection.left; column <= selection.right; ++column)
            if (!grid.RowHidden(row) && !grid.ColHidden(column)) grid.clear(row, column);
}

} // namespace kurbo
