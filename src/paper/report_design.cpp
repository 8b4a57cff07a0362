#include "paper/report_design.h"

#include "base/day.h"
#include "base/product.h"

#include <algorithm>

namespace kurbo {
namespace {

void addControl(ReportSection& section, ReportControl control, const ReportColumn& column) {
    control.column = column.column;
    control.align = column.align;
    section.controls.push_back(std::move(control));
}

} // namespace

std::vector<ReportRecords::Field> fieldsOf(std::span<const ReportColumn> columns) {
    std::vector<ReportRecords::Field> fields;
    for (const ReportColumn& column : columns) fields.push_back({column.field, column.bytes});
    return fields;
}

int widthOf(std::span<const ReportColumn> columns) {
    int width = 0;
    for (const ReportColumn& column : columns) width += column.width;
    return width;
}

int hiddenWidth(std::span<const ReportColumn> columns, const std::vector<bool>& ColHidden) {
    int width = 0;
    for (const ReportColumn& column : columns)
        if (ColHidden.at(static_cast<std::size_t>(column.column))) width += column.width;
    return width;
}

ReportControl label(const QString& name, const QString& text, int left, int width, const RowLook& look) {
    ReportControl control;
    control.name = name;
    control.left = left;
    control.top = look.top;
    control.width = width;
    control.height = look.height;
    control.text = text;
    control.fontSize = look.fontSize;
    control.bold = look.bold;
    control.fill = look.fill;
    control.edges = look.edges;
    return control;
}

void addFields(ReportSection& section, std::span<const ReportColumn> columns, const RowLook& look) {
    int left = 0;
    for (const ReportColumn& column : columns) {
        if (column.width == 0) continue;
        const QString field = QString::fromUtf16(column.field);
        ReportControl control = label(QStringLiteral("txt") + field, {}, left, column.width, look);
        control.dataField = field;
        addControl(section, std::move(control), column);
        left += column.width;
    }
}

void addCaptions(ReportSection& section, std::span<const ReportColumn> columns, const RowLook& look, QStringView prefix,
                 const QStringList& captions) {
    int left = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const ReportColumn& column = columns[i];
        if (column.width == 0) continue;
        addControl(section,
                   label(prefix.toString() + QString::fromUtf16(column.field),
                         captions.value(static_cast<qsizetype>(i)), left, column.width, look),
                   column);
        left += column.width;
    }
}

void addTitle(ReportSection& section, const QString& title, const QString& heading, int width) {
    constexpr RowLook large{.height = 400, .fontSize = 300, .bold = true, .edges = NoEdge};
    constexpr RowLook plain{.top = 430, .height = 290, .fontSize = 200, .edges = NoEdge};
    section.controls.push_back(label(QStringLiteral("lblTitle"), title, 0, width, large));
    section.controls.push_back(label(QStringLiteral("lblHeading"), heading, 0, width, plain));
    section.height = titleHeight;
}

std::optional<GridColour> zebra(int record) {
    return record % 2 == 0 ? std::optional<GridColour>() : GridColour{247, 249, 251};
}

QString reportHeading(const QString& period, const CodeName& section, const CodeName& staff) {
    const auto part = [](const QString& caption, const CodeName& who) {
        return who.code.isEmpty() ? QString() : QStringLiteral("    %1：%2 (%3)").arg(caption, who.name, who.code);
    };
    return period + part(QStringLiteral("部課"), section) + part(QStringLiteral("氏名"), staff);
}

QString reportDocumentName() {
    return productName() + QStringLiteral("ﾄﾞｷｭﾒﾝﾄ");
}

QString reportFileName(const QString& title, const QString& code, const QString& start, const QString& end) {
    const auto from = parseSlashDate(start);
    const auto to = parseSlashDate(end);
    const bool isMonth = from && to && addMonths(*from, 1) == *to + std::chrono::days(1);
    QStringList parts{title};
    if (!code.isEmpty()) parts.append(code);
    parts.append(isMonth ? end.left(7) : start == end ? end : start + u'-' + end);
    return parts.join(u'_').remove(u'/');
}

std::vector<bool> hiddenColumns(const GridModel& grid, int first, int last) {
    std::vector<bool> hidden(static_cast<std::size_t>(last) + 1);
    for (int column = first; column <= last; ++column)
        hidden[static_cast<std::size_t>(column)] = grid.ColHidden(column);
    return hidden;
}

QStringList cellsOf(const GridModel& grid, int row, std::span<const ReportColumn> columns) {
    QStringList cells;
    for (const ReportColumn& column : columns) cells.append(grid.TextMatrix(row, column.column));
    return cells;
}

} // namespace kurbo
