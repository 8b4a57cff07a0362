#include "totals/rptTotal.h"

#include "base/product.h"
#include "totals/totals.h"

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
    return {facts.field, bytes, at(totalColumnOf(facts.id)), facts.printWidth};
}

constexpr auto columns = [] {
    std::array<ReportColumn, words.size() + quantityCount> all{};
    std::ranges::transform(quantities, std::ranges::copy(words, all.begin()).out, columnOf);
    return all;
}();
constexpr std::span figures = std::span(columns).subspan(firstColumn);
constexpr int lineHeight = 250;
constexpr int fontSize = 165;

bool isByMonth(const GridModel& grid) {
    return grid.TextMatrix(0, at(TotalColumn::First)) == u"年月";
}

// Sums have no person.
bool isSum(const GridModel& grid, int row) {
    return grid.TextMatrix(row, at(TotalColumn::Staff)).isEmpty();
}

QString subTotal() {
    return QStringLiteral("小計");
}

// The group and the line's own words.
std::pair<QString, QString> wordsOf(const GridModel& grid, int row) {
    QString first = grid.TextMatrix(row, at(TotalColumn::First));
    if (!isSum(grid, row) || !first.endsWith(subTotal())) return {first, grid.TextMatrix(row, at(TotalColumn::Second))};
    first.chop(subTotal().size() + 1);
    return {first, subTotal()};
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
QStringList recordOf(const GridModel& grid, int row, bool byMonth, const QString& groupAbove) {
    const bool whole = isSum(grid, row);
    const auto [group, line] = wordsOf(grid, row);
    QStringList cells;
    cells.reserve(std::ssize(columns));
    cells << (byMonth ? group : line) << (byMonth ? line : group);
    cells << (line == subTotal() ? groupAbove : groupText(group, grid.TextMatrix(row, at(TotalColumn::Staff))));
    for (const ReportColumn& column : figures) {
        const QString cell = grid.TextMatrix(row, column.column);
        cells.append(whole ? cell : withoutOpenBracket(cell, column.bytes));
    }
    return cells;
}

void moveRight(ReportSection& section, int by) {
    for (ReportControl& control : section.controls)
        if (control.column >= 0) control.left += by;
}

ReportSection pageHeader(const GridModel& grid, const TotalHeading& heading) {
    ReportSection header;
    addTitle(header, QStringLiteral("月次集計"),
             reportHeading(heading.start + u'～' + heading.end, heading.section, heading.staff),
             labelWidth + widthOf(figures));
    const RowLook look{.top = titleHeight, .height = 280, .fontSize = 155, .fill = headingPaper};
    addCaptions(header, figures, look, u"lbl", cellsOf(grid, 0, figures));
    moveRight(header, labelWidth);
    header.controls.push_back(label(QStringLiteral("lblDetail"),
                                    isByMonth(grid) ? QStringLiteral("氏名") : QStringLiteral("年月"), 0, labelWidth,
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

rptTotal::rptTotal(const GridModel& vfgKurbo, const TotalHeading& heading, Day printedOn)
    : ColHidden_(hiddenColumns(vfgKurbo, at(totalColumnOf(firstOfDay)), at(TotalColumn::Personal) - 1)) {
    ActiveReport_ReportStart(vfgKurbo, heading, printedOn);
}

void rptTotal::ActiveReport_ReportStart(const GridModel& grid, const TotalHeading& heading, Day printedOn) {
    const bool byMonth = isByMonth(grid);
    ReportRecords records(fieldsOf(columns));
    for (int row = 1; row < grid.Rows(); ++row) {
        sums_.push_back(isSum(grid, row));
        const QString above = records.text(records.count() - 1, groupField());
        records.AddNew(recordOf(grid, row, byMonth, above), sums_.back() ? firstColumn : columns.size());
    }
    const QString month = QStringLiteral("F_YearMonth");
    const QString name = QStringLiteral("F_StaffName");
    run({.caption = productName() + QStringLiteral("－集計"),
         .documentName = reportDocumentName(),
         .printedOn = slashDate(printedOn),
         .fileName = reportFileName(QStringLiteral("月次集計"),
                                    heading.staff.code.isEmpty() ? heading.section.code : heading.staff.code,
                                    heading.start, heading.end),
         .PageHeader = pageHeader(grid, heading),
         .GroupHeader = groupHeader(),
         .groupField = groupField(),
         .Detail = detail(byMonth ? name : month),
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
