#include "totals/rptTotal.h"

#include "base/product.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int at(TotalColumn column) {
    return static_cast<int>(column);
}

// The detail's name or month stands in front of the figures.
constexpr int labelWidth = 1760;
constexpr int nameBytes = 20;
constexpr std::array words{
    ReportColumn{u"F_YearMonth", 11, -1, 0},
    ReportColumn{u"F_StaffName", nameBytes, -1, 0},
    // A month, or a name with its code where others have the same.
    ReportColumn{u"F_Group", 60, -1, 0},
};
constexpr std::size_t firstColumn = words.size();

constexpr ReportColumn columnOf(const QuantityFacts& facts) {
    const int bytes = facts.unit() == Unit::Time ? 8 : facts.unit() == Unit::Days ? 6 : 4;
    return {facts.field, bytes, at(totalColumnOf(facts.id)), facts.printWidth.count()};
}

constexpr auto columns = [] {
    std::array<ReportColumn, words.size() + quantityCount> all{};
    std::ranges::transform(quantities, std::ranges::copy(words, all.begin()).out, columnOf);
    return all;
}();
constexpr std::span figures = std::span(columns).subspan(firstColumn);
constexpr int lineHeight = 250;
constexpr int fontSize = 165;

QString subTotal() {
    return QStringLiteral("小計");
}

// The group's line beside the name or the month that stands under it.
QString lineOf(const TotalSheet& sheet, int row) {
    return sheet.at(row)->kind == LineKind::SubTotal ? subTotal() : sheet.grid.TextMatrix(row, at(TotalColumn::Second));
}

// Of a name that is too long for its field the code behind it stays.
QString groupText(const QString& group, const QString& staff) {
    const QString code = QStringLiteral(" (%1)").arg(staff);
    return group.endsWith(code) ? cutToBytes(group.chopped(code.size()), nameBytes) + code
                                : cutToBytes(group, nameBytes);
}

// A bracket that would be cut open says nothing.
QString withoutOpenBracket(const QString& cell, int bytes) {
    const qsizetype bracket = cell.indexOf(u'(');
    return bracket >= 0 && cell.size() > bytes ? cell.left(bracket) : cell;
}

// Figures of a person's month are as long as their fields; sums may be longer.
QStringList recordOf(const TotalSheet& sheet, int row, const QString& groupAbove) {
    const TotalEntry& entry = *sheet.at(row);
    const QString line = lineOf(sheet, row);
    QStringList cells;
    cells.reserve(std::ssize(columns));
    cells << (sheet.byStaff ? line : entry.group) << (sheet.byStaff ? entry.group : line);
    cells << (entry.kind == LineKind::SubTotal ? groupAbove : groupText(entry.group, entry.staff));
    for (const ReportColumn& column : figures) {
        const QString cell = sheet.grid.TextMatrix(row, column.column);
        cells.append(entry.kind != LineKind::Month ? cell : withoutOpenBracket(cell, column.bytes));
    }
    return cells;
}

void moveRight(ReportSection& section, int by) {
    for (ReportControl& control : section.controls)
        if (control.column >= 0) control.left += by;
}

ReportSection pageHeader(const TotalSheet& sheet, const TotalHeading& heading) {
    ReportSection header;
    addTitle(header, QStringLiteral("月次集計"),
             reportHeading(heading.start + u'～' + heading.end, heading.section, heading.staff),
             labelWidth + widthOf(figures));
    const RowLook look{.top = titleHeight, .height = 280, .fontSize = 155, .fill = headingPaper};
    addCaptions(header, figures, look, u"lbl", cellsOf(sheet.grid, 0, figures));
    moveRight(header, labelWidth);
    header.controls.push_back(label(QStringLiteral("lblDetail"),
                                    sheet.byStaff ? QStringLiteral("年月") : QStringLiteral("氏名"), 0, labelWidth,
                                    look));
    for (ReportControl& control : header.controls)
        if (control.top == look.top) control.align = GridAlign::Centre;
    header.height = titleHeight + look.height;
    return header;
}

QString groupField() {
    return QStringLiteral("F_Group");
}

ReportSection groupHeader() {
    constexpr RowLook look{.height = 270, .fontSize = 175, .bold = true, .fill = sumPaper};
    ReportSection section{.height = look.height};
    section.controls.push_back(label(QStringLiteral("txtGroup"), {}, 0, labelWidth + widthOf(figures), look));
    section.controls.back().dataField = groupField();
    return section;
}

ReportSection detail(const QString& field) {
    constexpr RowLook look{.height = lineHeight, .fontSize = fontSize};
    ReportSection section{.height = lineHeight};
    addFields(section, figures, look);
    moveRight(section, labelWidth);
    section.controls.push_back(label(QStringLiteral("txtDetail"), {}, 0, labelWidth, look));
    section.controls.back().dataField = field;
    return section;
}

ReportSection reportFooter() {
    ReportSection section{.height = 60};
    section.controls.push_back(label(QStringLiteral("linEnd"), {}, 0, labelWidth + widthOf(figures),
                                     {.height = section.height, .edges = BottomEdge}));
    return section;
}

} // namespace

rptTotal::rptTotal(const TotalSheet& sheet, const TotalHeading& heading, Day printedOn)
    : ColHidden_(hiddenColumns(sheet.grid, at(totalColumnOf(firstOfDay)), at(TotalColumn::Personal) - 1)) {
    ActiveReport_ReportStart(sheet, heading, printedOn);
}

void rptTotal::ActiveReport_ReportStart(const TotalSheet& sheet, const TotalHeading& heading, Day printedOn) {
    ReportRecords records(fieldsOf(columns));
    for (int row = 1; row < sheet.grid.Rows(); ++row) {
        sums_.push_back(sheet.at(row)->kind != LineKind::Month);
        const QString above = records.text(records.count() - 1, groupField());
        records.AddNew(recordOf(sheet, row, above), sums_.back() ? firstColumn : columns.size());
    }
    const QString month = QStringLiteral("F_YearMonth");
    const QString name = QStringLiteral("F_StaffName");
    run({.caption = productName() + QStringLiteral("－集計"),
         .documentName = reportDocumentName(),
         .printedOn = slashDate(printedOn),
         .fileName = reportFileName(QStringLiteral("月次集計"),
                                    heading.staff.code.isEmpty() ? heading.section.code : heading.staff.code,
                                    heading.start, heading.end),
         .PageHeader = pageHeader(sheet, heading),
         .GroupHeader = groupHeader(),
         .groupField = groupField(),
         .Detail = detail(sheet.byStaff ? month : name),
         .closing = sums_,
         .ReportFooter = reportFooter()},
        std::move(records));
}

void rptTotal::PageHeader_Format(ReportSection& section, int /*record*/) const {
    closeGaps(section, ColHidden_);
}

void rptTotal::GroupHeader_Format(ReportSection& section, int /*record*/) const {
    section.control(u"txtGroup").width -= hiddenWidth(figures, ColHidden_);
}

void rptTotal::Detail_Format(ReportSection& section, int record) const {
    closeGaps(section, ColHidden_);
    if (!sums_[static_cast<std::size_t>(record)]) return;
    for (ReportControl& control : section.controls) {
        control.bold = true;
        control.fill = sumPaper;
    }
}

void rptTotal::ReportFooter_Format(ReportSection& section, int /*record*/) const {
    section.control(u"linEnd").width -= hiddenWidth(figures, ColHidden_);
}

} // namespace kurbo
