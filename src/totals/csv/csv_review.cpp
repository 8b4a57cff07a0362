#include "totals/csv/csv_review.h"

#include "base/system/files.h"
#include "card/card_cells.h"
#include "engine/hours.h"

#include <QHash>

#include <array>

namespace kurbo {
namespace {

struct Heading {
    const char16_t* text;
    const char16_t* tip;
    int width; // twips
};

constexpr std::array headings{
    Heading{u"ﾌｧｲﾙ名", u"CSVﾌｧｲﾙ名", 2200},
    Heading{u"氏名", u"", 1600},
    Heading{u"部課", u"部課名", 1600},
    Heading{u"年月", u"", 800},
    Heading{u"年月", u"", 600},
    Heading{u"勤日", u"出勤日数", 600},
    Heading{u"働時", u"実働時間", 800},
    Heading{u"有残", u"有給休暇残数", 600},
    Heading{u"法残", u"法定内残業時間", 700},
    Heading{u"残業", u"普通残業時間", 700},
    Heading{u"深夜", u"深夜残業時間", 700},
    Heading{u"早出", u"早出勤務時間", 700},
    Heading{u"休日", u"休日出勤時間", 700},
    Heading{u"休夜", u"休日深夜時間", 700},
    Heading{u"法休", u"法定休日出勤時間", 700},
    Heading{u"法夜", u"法定休日深夜時間", 700},
    Heading{u"欠勤", u"", 700},
    Heading{u"有休", u"有給休暇取得日数", 600},
    Heading{u"特休", u"特別休暇取得日数", 600},
    Heading{u"代休", u"代休取得日数", 600},
    Heading{u"欠勤", u"欠勤回数", 600},
    Heading{u"遅刻", u"遅刻回数", 600},
    Heading{u"早退", u"早退回数", 600},
    Heading{u"本人", u"本人承認済", 600},
    Heading{u"所長", u"所属長承認済", 600},
    Heading{u"集計期間", u"集計期間", 2500},
};

using Names = QHash<QString, QString>;

Names namesOf(Connection& connection, const QString& statement) {
    Names names;
    for (Rows rows = connection.rows(statement); rows.next();) names.insert(rows.text(0), rows.text(1));
    return names;
}

QString figureText(const MonthField& field, const Value& figure, int countUnit) {
    if (field.kind == MonthKind::Time) return FormatHours(static_cast<Minutes>(figure.integer()), countUnit, false);
    return field.kind == MonthKind::Days ? daysText(figure.real()) : QString::number(figure.integer());
}

QStringList cellsOf(const LoadedMonth& month, const Names& people, const Names& sections, int countUnit) {
    const MonthRecord& record = month.record;
    const auto mark = [](bool given) { return given ? QStringLiteral("済") : QStringLiteral("未"); };
    QStringList cells{FileNameOf(month.file), people.value(record.staff, record.staff),
                      sections.value(record.section, record.section), record.year + QStringLiteral("年"),
                      record.month + QStringLiteral("月")};
    for (std::size_t i = 0; i < monthFields.size(); ++i)
        cells.append(figureText(monthFields[i], record.figures[i], countUnit));
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
