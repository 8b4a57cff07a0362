#include "screen/files/grid_file.h"

#include "screen/files/foreign_file.h"
#include "screen/files/grid_image.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kurbo {
using namespace gridimage;

namespace {

struct ColumnImage {
    int width = 0;
    GridType type = GridType::Text;
    GridAlign align = GridAlign::Left;
    bool hidden = false;
    QString format;
    QString mask;
    QString list;
};

// The own colours of a cell, or of a whole row.
struct ColourImage {
    int row = 0;
    int column = 0;
    std::optional<GridColour> fore;
    std::optional<GridColour> back;
};

struct GridImage {
    GridModel::Shape shape;
    bool mergeHeadings = false;
    QList<ColumnImage> columns;
    QList<QStringList> cells;
    QList<int> hiddenRows;
    QList<ColourImage> colours;
};

// Any damage ends the reading where it is found.

int intOf(const QJsonValue& value, int low, int high) {
    const int number = value.toInt(low - 1);
    if (number < low || number > high) throw foreignFile();
    return number;
}

bool boolOf(const QJsonValue& value) {
    if (!value.isBool()) throw foreignFile();
    return value.toBool();
}

QString textOf(const QJsonValue& value, int maxLength = maxCellLength) {
    const QString text = value.toString();
    if (!value.isString() || text.size() > maxLength) throw foreignFile();
    return text;
}

QJsonArray arrayOf(const QJsonValue& value, qsizetype low, qsizetype high) {
    QJsonArray array = value.toArray();
    if (!value.isArray() || array.size() < low || array.size() > high) throw foreignFile();
    return array;
}

GridType typeOf(const QJsonValue& value) {
    const auto type =
        static_cast<GridType>(intOf(value, static_cast<int>(GridType::Integer), static_cast<int>(GridType::YesNo)));
    if (type > GridType::Text && type < GridType::YesNo) throw foreignFile();
    return type;
}

ColumnImage columnOf(const QJsonObject& column) {
    const int align = intOf(column[u"align"], static_cast<int>(GridAlign::Left), static_cast<int>(GridAlign::Right));
    return {.width = intOf(column[u"width"], 0, maxWidth),
            .type = typeOf(column[u"type"]),
            .align = static_cast<GridAlign>(align),
            .hidden = boolOf(column[u"hidden"]),
            .format = textOf(column[u"format"]),
            .mask = textOf(column[u"mask"]),
            .list = textOf(column[u"list"], maxListLength)};
}

std::optional<GridColour> colourOf(const QJsonValue& value) {
    if (value.isNull()) return {};
    const QJsonArray parts = arrayOf(value, 3, 3);
    return GridColour{intOf(parts[0], 0, 255), intOf(parts[1], 0, 255), intOf(parts[2], 0, 255)};
}

ColourImage coloursOf(const QJsonValue& value, const GridModel::Shape& shape) {
    const QJsonArray parts = arrayOf(value, 4, 4);
    return {.row = intOf(parts[0], 0, shape.rows - 1),
            .column = intOf(parts[1], wholeRow, shape.columns - 1),
            .fore = colourOf(parts[2]),
            .back = colourOf(parts[3])};
}

GridModel::Shape shapeOf(const QJsonObject& shape, int rows, int columns) {
    const int fixedRows = intOf(shape[u"fixedRows"], 0, rows);
    const int fixedColumns = intOf(shape[u"fixedColumns"], 0, columns);
    return {.rows = rows,
            .columns = columns,
            .fixedRows = fixedRows,
            .fixedColumns = fixedColumns,
            .frozenRows = intOf(shape[u"frozenRows"], 0, rows - fixedRows),
            .frozenColumns = intOf(shape[u"frozenColumns"], 0, columns - fixedColumns)};
}

QStringList rowOf(const QJsonValue& value, qsizetype columns) {
    QStringList cells;
    for (const QJsonValue cell : arrayOf(value, columns, columns)) cells.append(textOf(cell));
    return cells;
}

GridImage imageOf(const QJsonObject& json) {
    if (json[u"format"].toString() != QStringView(formatName)) throw foreignFile();
    (void)intOf(json[u"version"], 1, formatVersion);
    GridImage image;
    for (const QJsonValue column : arrayOf(json[u"columns"], 0, maxColumns))
        image.columns.append(columnOf(column.toObject()));
    for (const QJsonValue row : arrayOf(json[u"rows"], 0, maxRows))
        image.cells.append(rowOf(row, image.columns.size()));
    const QJsonObject shape = json[u"shape"].toObject();
    image.shape = shapeOf(shape, static_cast<int>(image.cells.size()), static_cast<int>(image.columns.size()));
    image.mergeHeadings = boolOf(shape[u"mergeHeadings"]);
    for (const QJsonValue row : arrayOf(json[u"hiddenRows"], 0, image.shape.rows))
        image.hiddenRows.append(intOf(row, 0, image.shape.rows - 1));
    for (const QJsonValue colours : arrayOf(json[u"colours"], 0, maxBytes))
        image.colours.append(coloursOf(colours, image.shape));
    return image;
}

void fillColumn(GridModel& grid, int column, const ColumnImage& image) {
    grid.ColWidth(column, Twips(image.width));
    grid.ColDataType(column, image.type);
    grid.ColAlignment(column, image.align);
    grid.ColHidden(column, image.hidden);
    grid.ColFormat(column, image.format);
    grid.ColEditMask(column, image.mask);
    grid.ColComboList(column, image.list);
}

void fillColours(GridModel& grid, const ColourImage& image) {
    if (image.column == wholeRow) {
        grid.RowForeColor(image.row, image.fore);
        grid.RowBackColor(image.row, image.back);
    } else {
        grid.CellForeColor(image.row, image.column, image.fore);
        grid.CellBackColor(image.row, image.column, image.back);
    }
}

void fill(GridModel& grid, const GridImage& image) {
    grid.Redraw(false);
    grid.reset(image.shape);
    grid.MergeHeadings(image.mergeHeadings);
    for (int column = 0; column < image.columns.size(); ++column) fillColumn(grid, column, image.columns[column]);
    for (int row = 0; row < image.cells.size(); ++row) grid.fillRow(row, image.cells[row]);
    for (const int row : image.hiddenRows) grid.RowHidden(row, true);
    for (const ColourImage& colours : image.colours) fillColours(grid, colours);
    grid.Redraw(true);
}

} // namespace

void LoadGrid(GridModel& grid, const QString& file) {
    const QJsonDocument document = QJsonDocument::fromJson(readForeignFile(file, maxBytes));
    fill(grid, imageOf(document.object()));
}

} // namespace kurbo
