#include "paper/grid_pages.h"
#include "paper/paper_texts.h"
#include "paper/report_design.h"

namespace kurbo::test {
namespace {

TEST(ReportRecords, CutsFieldsByBytesAndNeverHalfACharacter) {
    for (const auto& [text, cut] :
         {std::pair{u"12345678"_q, u"12345"_q}, {u"漢字か"_q, u"漢字"_q}, {u"a髙𠮷b"_q, u"a髙𠮷"_q}})
        EXPECT_EQ(cutToBytes(text, 5), cut) << text;
    ReportRecords list({{u"F_A", 3}, {u"F_B", 4}});
    list.AddNew({u"漢字"_q, u"12:30"_q});
    EXPECT_EQ(list.text(0, u"F_A") + list.text(0, u"F_B"), u"漢12:3"_q);
}

TEST(Report, ItsFileIsNamedByWhomAndWhen) {
    EXPECT_EQ(reportFileName(u"t"_q, u"1001"_q, u"2026/04/21"_q, u"2026/05/20"_q), u"t_1001_202605"_q);
    EXPECT_EQ(reportFileName(u"t"_q, {}, u"2026/05/01"_q, u"2026/05/30"_q), u"t_20260501-20260530"_q);
}

constexpr std::array columns{ReportColumn{u"F_Group", 20, -1, 0}, ReportColumn{u"F_Name", 20, 3, 1000},
                             ReportColumn{u"F_A", 8, 4, 700}, ReportColumn{u"F_B", 8, 5, 600},
                             ReportColumn{u"F_C", 8, 6, 500}};

TEST(ReportSection, HiddenColumnsLeaveNoGapInAnyOfItsLines) {
    ReportSection section;
    addFields(section, columns, {.height = 100});
    addCaptions(section, columns, {.top = 100, .height = 100}, u"sum", {{}, {}, u"a"_q, u"b"_q, u"c"_q});
    std::vector<bool> hidden(7);
    hidden[4] = true;
    closeGaps(section, hidden);
    EXPECT_FALSE(section.control(u"txtF_A").visible || section.control(u"sumF_A").visible);
    for (const char16_t* name : {u"txtF_B", u"sumF_B"}) EXPECT_EQ(section.control(name).left, 1000);
    for (const char16_t* name : {u"txtF_C", u"sumF_C"}) EXPECT_EQ(section.control(name).left, 1600);
    EXPECT_EQ(hiddenWidth(std::span(columns).subspan(1), hidden), 700);
}

// Groups of so many records each; a page holds nine lines.
class Groups final : public Report {
  public:
    explicit Groups(const std::vector<int>& sizes, bool closed = false) {
        ReportRecords records(fieldsOf(columns));
        std::vector<bool> closing;
        for (std::size_t group = 0; group < sizes.size(); ++group)
            for (int i = 0; i < sizes[group]; ++i) {
                records.AddNew({u"G%1"_q.arg(group), u"%1.%2"_q.arg(group).arg(i)});
                closing.push_back(closed && i + 1 == sizes[group]);
            }
        const int line = (footerTop(a4Landscape) - paperMargin) / 10;
        Design design{.caption = u"c"_q, .documentName = u"d"_q, .printedOn = u"2026/04/15"_q};
        design.groupField = u"F_Group"_q;
        design.PageHeader = {line, {label(u"lbl"_q, u"head"_q, 0, 1000, {.height = line})}};
        design.GroupHeader = {line, {label(u"txtGroup"_q, {}, 0, 1000, {.height = line})}};
        design.GroupHeader.controls[0].dataField = u"F_Group"_q;
        design.Detail.height = line;
        addFields(design.Detail, columns, {.height = line});
        design.closing = std::move(closing);
        design.ReportFooter = {line, {label(u"end"_q, u"end"_q, 0, 1000, {.height = line})}};
        run(std::move(design), std::move(records));
    }
    void Detail_Format(ReportSection& section, int record) const override {
        if (record == 1) section.control(u"txtF_Name").bold = true;
    }
};

QStringList pageTexts(const Groups& report) {
    QStringList pages;
    for (int i = 0; i < report.pageCount(); ++i) {
        QStringList lines = linesOf(report.page(i));
        EXPECT_EQ(lines.takeFirst(), u"head"_q) << "on every page";
        EXPECT_EQ(lines.takeLast().section(u'|', 0), u"印刷日：2026/04/15"_q);
        pages.append(lines.join(u' '));
    }
    return pages;
}

TEST(Report, GroupsStartCleanlyAndGoOnUnderTheirHeading) {
    struct Case {
        std::vector<int> sizes;
        bool closed;
        QString pages;
    };
    const std::vector cases{
        Case{{}, false, u"end"_q},
        Case{{8}, false, u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7/end"_q},
        // No heading alone at the end of a page.
        Case{{7, 1}, false, u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6/G1 1.0 end"_q},
        Case{{5, 4}, false, u"G0 0.0 0.1 0.2 0.3 0.4 G1 1.0 1.1/G1 1.2 1.3 end"_q},
        Case{{9}, true, u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6/G0 0.7 0.8 end"_q},
        Case{{6, 2}, true, u"G0 0.0 0.1 0.2 0.3 0.4 0.5/G1 1.0 1.1 end"_q},
    };
    for (const Case& c : cases) {
        const Groups report(c.sizes, c.closed);
        EXPECT_EQ(pageTexts(report).join(u'/'), c.pages);
        expectClean(report);
    }
    const PaperPage page = Groups({3}).page(0);
    EXPECT_TRUE(itemOf(page, u"0.1"_q).bold);
    EXPECT_FALSE(itemOf(page, u"0.2"_q).bold) << "each record is formatted afresh";
}

// Rights of three rows, and rows for typing below them.
void fill(GridModel& grid) {
    grid.reset({.rows = 9, .columns = 6, .fixedRows = 2});
    grid.FormatString(u"|^ｺｰﾄﾞ|部課|^閲覧|^閲覧|^承認"_q);
    grid.MergeHeadings(true);
    const QStringList second{{}, {}, u"部課"_q, u"自"_q, u"他"_q, u"承認"_q};
    for (int column = 2; column < 6; ++column) grid.TextMatrix(1, column, second[column]);
    grid.ColHidden(1, true);
    grid.ColComboList(2, u"#S01;総務部|#S02;営業部"_q);
    for (const int column : {3, 4, 5}) grid.ColDataType(column, GridType::YesNo);
    for (int row = 2; row < 9; ++row) grid.TextMatrix(row, 0, QString::number(row - 1));
    for (int row = 2; row < 5; ++row) {
        grid.TextMatrix(row, 1, u"7"_q);
        grid.TextMatrix(row, 2, row == 3 ? u"S02"_q : u"S01"_q);
    }
    grid.CellChecked(4, 5, true);
    grid.RowHidden(2, true);
}

TEST(GridPages, ShowWhatTheScreenShows) {
    GridModel grid;
    fill(grid);
    grid.CellBackColor(3, 3, GridColour{0, 0, 128});
    grid.CellForeColor(3, 2, GridColour{255, 0, 0});
    const GridPages pages(grid, u"Kurbo－アクセス権設定(甲)"_q, u"2026/04/15"_q);
    grid.reset({.rows = 1, .columns = 1});
    ASSERT_EQ(pages.pageCount(), 1) << "the rows kept for typing aren't printed";
    const PaperPage page = pages.page(0);
    QStringList lines = linesOf(page);
    EXPECT_EQ(lines.takeLast(), u"印刷日：2026/04/15"_q);
    EXPECT_EQ(lines, QStringList({u"Kurbo－アクセス権設定(甲)"_q, u"部課|閲覧|承認"_q, u"自|他"_q, u"2|営業部"_q,
                                  u"3|総務部|○"_q}));
    EXPECT_EQ(itemOf(page, u"閲覧"_q).width, 2 * itemOf(page, u"自"_q).width);
    EXPECT_EQ(itemOf(page, u"営業部"_q).fore, (GridColour{255, 0, 0}));
    for (const PaperItem& item : page)
        EXPECT_GT(item.fill.value_or(GridColour{255, 255, 255}).red, 200) << "nothing dark";
    expectClean(pages);
}

TEST(GridPages, HeadingsStandOnEveryPage) {
    GridModel grid;
    grid.reset({.rows = 101, .columns = 2});
    grid.FormatString(u"|^日付"_q);
    for (int row = 1; row < 101; ++row) grid.TextMatrix(row, 1, u"day %1"_q.arg(row));
    const GridPages pages(grid, u"year"_q, u"2026/04/15"_q);
    ASSERT_EQ(pages.pageCount(), 2);
    EXPECT_EQ(linesOf(pages.page(0)).size() + linesOf(pages.page(1)).size(), 100 + 2 * 3);
}

// By the width of ten columns beside the fixed one: portrait, landscape, smaller, and over two sheets.
TEST(GridPages, AWideGridFindsItsPlace) {
    for (const auto& [width, lying, smaller, sheets] :
         {std::tuple{900, false, false, 1}, {1400, true, false, 1}, {2000, true, true, 1}, {3000, true, true, 2}}) {
        SCOPED_TRACE(width);
        GridModel grid;
        grid.reset({.rows = 2, .columns = 11});
        grid.ColWidth(0, Twips(500));
        grid.TextMatrix(1, 0, u"row"_q);
        for (int column = 1; column < 11; ++column) {
            grid.ColWidth(column, Twips(width));
            grid.TextMatrix(1, column, u"c%1"_q.arg(column));
        }
        const GridPages pages(grid, u"wide"_q, u"2026/04/15"_q);
        EXPECT_EQ(pages.paper().width == a4Landscape.width, lying);
        EXPECT_EQ(itemOf(pages.page(0), u"c1"_q).width < width, smaller);
        ASSERT_EQ(pages.pageCount(), sheets);
        QStringList cells;
        for (int i = 0; i < sheets; ++i) {
            EXPECT_EQ(itemOf(pages.page(i), u"row"_q).left, paperMargin);
            cells += linesOf(pages.page(i)).value(1).split(u'|').mid(1);
        }
        EXPECT_EQ(cells.join(u' '), u"c1 c2 c3 c4 c5 c6 c7 c8 c9 c10"_q);
        expectClean(pages);
    }
}

} // namespace
} // namespace kurbo::test
