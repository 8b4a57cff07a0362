#include "screen/files/grid_file.h"

#include "base/failure.h"
#include "base/system/files.h"
#include "screen/files/grid_image.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace kurbo {
using namespace gridimage;

namespace {

Complaint tooLarge() {
    return Complaint(QStringLiteral("表が大きすぎるため、ファイルに保存できません。"));
}

QJsonValue jsonOf(std::optional<GridColour> colour) {
    if (!colour) return {};
    return QJsonArray{colour->red, colour->green, colour->blue};
}

QJsonObject columnOf(const GridModel& grid, int column) {
    return {{QStringLiteral("width"), grid.ColWidth(column).count()},
            {QStringLiteral("type"), static_cast<int>(grid.ColDataType(column))},
            {QStringLiteral("align"), static_cast<int>(grid.ColAlignment(column))},
            {QStringLiteral("hidden"), grid.ColHidden(column)},
            {QStringLiteral("format"), grid.ColFormat(column)},
            {QStringLiteral("mask"), grid.ColEditMask(column)},
            {QStringLiteral("list"), grid.ColComboList(column).source()}};
}

QJsonArray cellsOf(const GridModel& grid, int row) {
    QJsonArray cells;
    for (int column = 0; column < grid.Cols(); ++column) {
        const QString text = grid.TextMatrix(row, column);
        if (text.size() > maxCellLength) throw tooLarge();
        cells.append(text);
    }
    return cells;
}

void addColours(QJsonArray& colours, const GridModel& grid, int row) {
    const auto add = [&](int column, std::optional<GridColour> fore, std::optional<GridColour> back) {
        if (fore || back) colours.append(QJsonArray{row, column, jsonOf(fore), jsonOf(back)});
    };
    const auto fore = grid.RowForeColor(row);
    const auto back = grid.RowBackColor(row);
    const auto own = [](std::optional<GridColour> cell, std::optional<GridColour> ofRow) {
        return cell == ofRow ? std::nullopt : cell;
    };
    add(wholeRow, fore, back);
    for (int column = 0; column < grid.Cols(); ++column)
        add(column, own(grid.CellForeColor(row, column), fore), own(grid.CellBackColor(row, column), back));
}

// Fixed and frozen rows and columns that the grid has lost aren't kept.
QJsonObject shapeOf(const GridModel& grid) {
    const int fixedRows = std::min(grid.FixedRows(), grid.Rows());
    const int fixedColumns = std::min(grid.FixedCols(), grid.Cols());
    return {{QStringLiteral("fixedRows"), fixedRows},
            {QStringLiteral("fixedColumns"), fixedColumns},
            {QStringLiteral("frozenRows"), std::min(grid.FrozenRows(), grid.Rows() - fixedRows)},
            {QStringLiteral("frozenColumns"), std::min(grid.FrozenCols(), grid.Cols() - fixedColumns)},
            {QStringLiteral("mergeHeadings"), grid.MergeHeadings()}};
}

QJsonObject imageOf(const GridModel& grid) {
    QJsonArray columns;
    for (int column = 0; column < grid.Cols(); ++column) columns.append(columnOf(grid, column));
    QJsonArray rows;
    QJsonArray hiddenRows;
    QJsonArray colours;
    for (int row = 0; row < grid.Rows(); ++row) {
        rows.append(cellsOf(grid, row));
        if (grid.RowHidden(row)) hiddenRows.append(row);
        addColours(colours, grid, row);
    }
    return {{QStringLiteral("format"), QString::fromUtf16(formatName)},
            {QStringLiteral("version"), formatVersion},
            {QStringLiteral("shape"), shapeOf(grid)},
            {QStringLiteral("columns"), columns},
            {QStringLiteral("hiddenRows"), hiddenRows},
            {QStringLiteral("colours"), colours},
            {QStringLiteral("rows"), rows}};
}

} // namespace

void SaveGrid(const GridModel& grid, const QString& file) {
    if (grid.Rows() > maxRows || grid.Cols() > maxColumns) throw tooLarge();
    const QByteArray bytes = QJsonDocument(imageOf(grid)).toJson(QJsonDocument::Compact);
    if (bytes.size() > maxBytes) throw tooLarge();
    replaceFile(file, bytes);
}

} // namespace kurbo
