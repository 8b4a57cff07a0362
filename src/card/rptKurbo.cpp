#include "card/rptKurbo.h"

#include "base/product.h"
#include "card/card_grid.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int at(CardColumn column) {
    return static_cast<int>(column);
}

constexpr auto centre = GridAlign::Centre;
constexpr std::array facts{
    ReportColumn{u"F_Date", 12, at(CardColumn::Date), 1160, centre},
    ReportColumn{u"F_Type", 1, at(CardColumn::Holiday), 0},
    ReportColumn{u"F_Plan", 30, at(CardColumn::Plan), 2640, GridAlign::Left},
    ReportColumn{u"F_Enter", 15, at(CardColumn::Enter), 820, centre},
    ReportColumn{u"F_Leave", 15, at(CardColumn::Leave), 1160, centre},
};

constexpr ReportColumn columnOf(const QuantityFacts& quantity) {
    const int column = at(cardColumnOf(quantity.id));
    if (quantity.unit() == Unit::Time) return {quantity.field, 6, column, 760};
    return {quantity.field, quantity.unit() == Unit::Days ? 4 : 1, column, 514, centre};
}

constexpr auto columns = [] {
    std::array<ReportColumn, facts.size() + dayQuantities.size()> all{};
    std::ranges::transform(dayQuantities, std::ranges::copy(facts, all.begin()).out, columnOf);
    return all;
}();

constexpr int dayHeight = 260;
constexpr int sealWidth = 900;
constexpr GridColour red{255, 0, 0};
constexpr GridColour blue{0, 0, 255};

// Two empty boxes under their words, at the right edge.
void addSeals(ReportSection& header) {
    constexpr RowLook word{.height = 220, .fontSize = 160};
    constexpr RowLook box{.top = 220, .height = 800};
    int left = widthOf(columns) - 2 * sealWidth;
    for (const QString& who : {QStringLiteral("所属長"), QStringLiteral("本人")}) {
        header.controls.push_back(label(QStringLiteral("lblSeal"), who, left, sealWidth, word));
        header.controls.back().align = centre;
        header.controls.push_back(label(QStringLiteral("picSeal"), {}, left, sealWidth, box));
        left += sealWidth;
    }
}

ReportSection pageHeader(const GridModel& grid, const CardHeading& heading) {
    constexpr int sealsHeight = 1080;
    ReportSection header;
    addTitle(header, QStringLiteral("タイムカード"),
             reportHeading(heading.start + u'～' + heading.end, heading.section, heading.staff),
             widthOf(columns) - 2 * sealWidth - 100);
    addSeals(header);
    const RowLook look{.top = sealsHeight, .height = 280, .fontSize = 155, .fill = headingPaper};
    addCaptions(header, columns, look, u"lbl", cellsOf(grid, 0, columns));
    for (ReportControl& control : header.controls)
        if (control.column >= 0) control.align = centre;
    header.height = sealsHeight + look.height;
    return header;
}

ReportSection detail() {
    ReportSection section{.height = dayHeight};
    addFields(section, columns, {.height = dayHeight});
    return section;
}

// The words above the first three sums, and the two summary rows of the grid.
ReportSection reportFooter(const GridModel& grid) {
    constexpr int gap = 40;
    ReportSection footer;
    RowLook look{.top = gap, .height = 220, .fontSize = 150, .fill = headingPaper};
    for (const int row : {daySumRow - 1, daySumRow, finalSumRow}) {
        addCaptions(footer, columns, look, QStringLiteral("sum%1").arg(row), cellsOf(grid, row, columns));
        look = {.top = look.top + look.height, .height = dayHeight, .fontSize = 170, .bold = true};
    }
    for (ReportControl& control : footer.controls)
        if (control.column <= at(CardColumn::Leave)) control.align = centre;
    footer.height = look.top;
    return footer;
}

} // namespace

rptKurbo::rptKurbo(const GridModel& vfgKurbo, const CardHeading& heading, Day printedOn)
    : ColHidden_(hiddenColumns(vfgKurbo, at(cardColumnOf(firstOfDay)), at(CardColumn::WorkTime) - 1)) {
    ActiveReport_ReportStart(vfgKurbo, heading, printedOn);
}

void rptKurbo::ActiveReport_ReportStart(const GridModel& grid, const CardHeading& heading, Day printedOn) {
    ReportRecords records(fieldsOf(columns));
    for (int row = firstCardDay; row < grid.Rows(); ++row) records.AddNew(cellsOf(grid, row, columns));
    run({.caption = productName() + QStringLiteral("－タイムカード"),
         .documentName = reportDocumentName(),
         .printedOn = slashDate(printedOn),
         .fileName = reportFileName(QStringLiteral("タイムカード"), heading.staff.code, heading.start, heading.end),
         .PageHeader = pageHeader(grid, heading),
         .Detail = detail(),
         .ReportFooter = reportFooter(grid)},
        std::move(records));
}

void rptKurbo::PageHeader_Format(ReportSection& section, int /*record*/) const {
    closeGaps(section, ColHidden_);
}

// Holidays red, half holidays blue.
void rptKurbo::Detail_Format(ReportSection& section, int record) const {
    closeGaps(section, ColHidden_);
    for (ReportControl& control : section.controls) control.fill = zebra(record);
    const QString type = DataSource().text(record, u"F_Type");
    ReportControl& date = section.control(u"txtF_Date");
    const bool whole = type == u"0" || type == u"3";
    const bool half = type == u"1" || type == u"2";
    date.bold = whole || half;
    date.fore = whole ? red : half ? blue : GridColour{};
}

void rptKurbo::ReportFooter_Format(ReportSection& section, int /*record*/) const {
    closeGaps(section, ColHidden_);
}

} // namespace kurbo
