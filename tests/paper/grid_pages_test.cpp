#include "paper/grid_pages.h"

#include "paper/paper_texts.h"

namespace kurbo::test {
namespace {

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
    grid.CellBackColor(3, 4, GridColour{255, 255, 128});
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
    EXPECT_EQ(itemOf(page, u"承認"_q).height, 2 * itemOf(page, u"自"_q).height);
    EXPECT_EQ(itemOf(page, u"営業部"_q).fore, (GridColour{255, 0, 0}));
    for (const PaperItem& item : page)
        EXPECT_GT(item.fill.value_or(GridColour{255, 255, 255}).red, 200) << "nothing dark";
    EXPECT_TRUE(std::ranges::any_of(page, [](const PaperItem& item) {
        return item.fill == GridColour{255, 255, 128};
    }));
    expectClean(pages);
}

TEST(GridPages, HeadingsStandOnEveryPage) {
    GridModel grid;
    grid.reset({.rows = 101, .columns = 2});
    grid.FormatString(u"|^日付"_q);
    for (int row = 1; row < 101; ++row) grid.TextMatrix(row, 1, u"day %1"_q.arg(row));
    const GridPages pages(grid, u"year"_q, u"2026/04/15"_q);
    ASSERT_EQ(pages.pageCount(), 2);
    EXPECT_EQ(linesOf(pages.page(1)).value(1), u"日付"_q);
    EXPECT_EQ(linesOf(pages.page(0)).size() + linesOf(pages.page(1)).size(), 100 + 2 * 3);
    expectClean(pages);
}

// By the width of ten columns beside the fixed one: portrait, landscape, smaller, and over two sheets.
TEST(GridPages, AWideGridFindsItsPlace) {
    struct Case {
        int width;
        bool lying;
        bool smaller;
        int sheets;
    };
    for (const Case& c : {Case{900, false, false, 1}, Case{1400, true, false, 1}, Case{2000, true, true, 1},
                          Case{3000, true, true, 2}}) {
        GridModel grid;
        grid.reset({.rows = 2, .columns = 11});
        grid.ColWidth(0, 500);
        grid.TextMatrix(1, 0, u"row"_q);
        for (int column = 1; column < 11; ++column) {
            grid.ColWidth(column, c.width);
            grid.TextMatrix(1, column, u"c%1"_q.arg(column));
        }
        const GridPages pages(grid, u"wide"_q, u"2026/04/15"_q);
        EXPECT_EQ(pages.paper().width == a4Landscape.width, c.lying) << c.width;
        EXPECT_EQ(itemOf(pages.page(0), u"c1"_q).width < c.width, c.smaller) << c.width;
        ASSERT_EQ(pages.pageCount(), c.sheets) << c.width;
        QStringList cells;
        for (int i = 0; i < c.sheets; ++i) {
            EXPECT_EQ(itemOf(pages.page(i), u"row"_q).left, paperMargin);
            cells += linesOf(pages.page(i)).value(1).split(u'|').mid(1);
        }
        EXPECT_EQ(cells.join(u' '), u"c1 c2 c3 c4 c5 c6 c7 c8 c9 c10"_q);
        expectClean(pages);
    }
}

} // namespace
} // namespace kurbo::test
