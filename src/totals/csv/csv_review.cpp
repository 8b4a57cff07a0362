#include "totals/csv/csv_review.h"

#include "base/system/files.h"
#include "engine/hours.h"
#include "month/figure_texts.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

struct Heading {
    const char16_t* text;
    const char16_t* tip;
    Twips width;
};

constexpr std::array before{
    Heading{u"ﾌｧｲﾙ名", u"CSVﾌｧｲﾙ名", Twips(2200)},
    Heading{u"氏名", u"", Twips(1600)},
    Heading{u"部課", u"部課名", Twips(1600)},
    Heading{u"年月", u"", Twips(800)},
    Heading{u"年月", u"", Twips(600)},
};
constexpr std::array behind{
    Heading{u"本人", u"本人承認済", Twips(600)},
    Heading{u"所長", u"所属長承認済", Twips(600)},
    Heading{u"集計期間", u"集計期間", Twips(2500)},
};

constexpr auto headings = [] {
    std::array<Heading, before.size() + quantityCount + behind.size()> all{};
    auto place = std::ranges::copy(before, all.begin()).out;
    for (const QuantityFacts& facts : quantities) *place++ = {facts.shortHeading, facts.tip, facts.shortWidth};
    std::ranges::copy(behind, place);
    return all;
}();

using Names = QHash<QString, QString>;

Names namesOf(Connection& connection, const QString& statement) {
    Names names;
    for (Rows rows = connection.rows(statement); rows.next();) names.insert(rows.text(0), rows.text(1));
    return names;
}

QString figureText(const QuantityFacts& facts, const Value& figure, int countUnit) {
    if (figure.isNull()) return {};
    if (facts.unit() == Unit::Time) return FormatHours(Minutes(figure.integer()), countUnit, false);
    return facts.unit() == Unit::Days ? daysText(figure.real()) : QString::number(figure.integer());
}

QStringList cellsOf(const LoadedMonth& month, const Names& people, const Names& sections, int countUnit) {
    const MonthRecord& record = month.record;
    const auto mark = [](bool given) { return given ? QStringLiteral("済") : QStringLiteral("未"); };
    QStringList cells{FileNameOf(month.file), people.value(record.staff, record.staff),
                      sections.value(record.section, record.section), record.year + QStringLiteral("年"),
                      record.month + QStringLiteral("月")};
    for (const QuantityFacts& facts : quantities)
        cells.append(figureText(facts, record.figures[placeOf(facts.id)], countUnit));
    return cells << mark(record.personalApproval) << mark(record.superiorApproval) << record.term;
}

} // namespace

void fillCsvGrid(Connection& connection, GridModel& grid, const QList<LoadedMonth>& months, int countUnit) {
    const Names people = namesOf(connection, QStringLiteral("SELECT F_StaffCode, F_StaffName FROM C03_Staff;"));
    const Names sections = namesOf(connection, QStringLiteral("SELECT F_SectionCode, F_SectionName FROM C02_Section;"));
    const Undrawn undrawn(grid);
    grid.reset({.rows = 1 + static_cast<int>(months.size()),
                .columns = static_cast<int>(headings.size()),
                .fixedColumns = 0,
                .frozenColumns = 2});
    grid.MergeHeadings(true);
    for (int column = 0; column < grid.Cols(); ++column) {
        const Heading& heading = headings[static_cast<std::size_t>(column)];
        grid.TextMatrix(0, column, QString::fromUtf16(heading.text));
        grid.ColWidth(column, heading.width);
        grid.ColAlignment(column, column < 3 ? GridAlign::Left : GridAlign::Centre);
    }
    for (int row = 0; row < months.size(); ++row)
        grid.fillRow(row + 1, cellsOf(months[row], people, sections, countUnit));
}

QString csvHeadingTip(int column) {
    const bool known = column >= 0 && column < static_cast<int>(headings.size());
    return known ? QString::fromUtf16(headings[static_cast<std::size_t>(column)].tip) : QString();
}

} // namespace kurbo
