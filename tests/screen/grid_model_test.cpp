#include "screen/grid/grid_clipboard.h"
#include "support/desk.h"
#include "support/table.h"

#include <QAbstractItemModelTester>

#include <set>

namespace kurbo::test {
namespace {

// Everything may be edited but column 2 of row 3.
struct Rules final : GridRules {
    [[nodiscard]] bool mayEdit(int row, int column) const override { return row != 3 || column != 2; }
    void edited(int row, int column) override { changes.insert({row, column}); }
    std::set<std::pair<int, int>> changes;
};

// Headings in row 0 and column 0; columns 1 to 4: a list, text, a hidden one, yes/no.
class GridTest : public ::testing::Test {
  protected:
    GridTest() {
        grid.setRules(&rules);
        grid.reset({.rows = 6, .columns = 5});
        grid.FormatString(u"|^方法|名称|隠|>可"_q);
        grid.ColComboList(1, u"|#0;毎週|#1;第１"_q);
        grid.ColHidden(3, true);
        grid.ColDataType(4, GridType::YesNo);
        for (int row = 1; row < 6; ++row) grid.fillRow(row, {QString::number(row), u"1"_q, u"x"_q, u"h"_q, u"-1"_q});
    }
    [[nodiscard]] QString row(int number) const {
        QStringList cells;
        for (int column = 0; column < grid.Cols(); ++column) cells.append(grid.TextMatrix(number, column));
        return cells.join(u',');
    }

    Rules rules;
    GridModel grid;
    const QAbstractItemModelTester tester{&grid, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(GridTest, HoldsShowsAndMarks) {
    EXPECT_EQ(grid.CellText(1, 1), u"第１"_q);
    grid.edit(1, 1, u" 毎週 "_q);
    grid.edit(3, 2, u"refused"_q);
    grid.edit(2, 2, u"x"_q);
    grid.edit(0, 2, u"heading"_q);
    EXPECT_EQ(row(1), u"1,0,x,h,-1"_q) << "a shown word is held as its code";
    EXPECT_EQ(rules.changes, (std::set<std::pair<int, int>>{{1, 1}})) << "an unchanged text is no edit";
    EXPECT_EQ(grid.RowStatus(1), GridStatus::Modified);
    EXPECT_EQ(grid.RowStatus(2), GridStatus::None);
    grid.TextMatrix(2, 2, u"program"_q);
    grid.TextMatrix(1, 2, u"program"_q);
    EXPECT_EQ(grid.RowStatus(2), GridStatus::Updated);
    EXPECT_EQ(grid.RowStatus(1), GridStatus::Modified) << "the person's mark stays";
    EXPECT_EQ(grid.TextMatrix(99, 0) + grid.TextMatrix(0, -1), QString());
}

TEST_F(GridTest, FormatsShowDatesAndMoney) {
    grid.ColFormat(2, u"hh:nn"_q);
    grid.ColFormat(3, u"$#,###"_q);
    for (const QStringList& cells : rowsOf("2026/05/01 08:52:17 | 08:52      | 1234567 | ¥1,234,567\n"
                                           "出張                | 出張       | 0       |\n"
                                           "                    |            | -980    | -¥980\n"
                                           "2026/13/01          | 2026/13/01 | 多い    | 多い")) {
        grid.fillRow(1, {{}, {}, cells[0], cells[2], {}});
        EXPECT_EQ(grid.CellText(1, 2) + grid.CellText(1, 3), cells[1] + cells[3]);
    }
}

TEST_F(GridTest, CopiesWhatIsSeenWithTheHeadingsOfWholeColumns) {
    const GridCopy part = copiedCells(grid, {2, 1, 3, 4});
    EXPECT_EQ(part.shown, u"2\t第１\tx\t-1\r\n3\t第１\tx\t-1\r\n"_q) << "all columns take their heading column along";
    EXPECT_EQ(part.held, u"2\t1\tx\t-1\r\n3\t1\tx\t-1\r\n"_q);
    grid.RowHidden(3, true);
    EXPECT_EQ(copiedCells(grid, {1, 1, 5, 1}).shown, u"方法\r\n第１\r\n第１\r\n第１\r\n第１\r\n"_q);
}

TEST_F(GridTest, PastesOverTheSelectionOnly) {
    pasteCells(grid, {1, 1, 3, 2}, u"毎週\ta\tmore\r\n第１\tb\r\nthird\tc\r\n"_q);
    EXPECT_EQ(row(1) + u'/' + row(2) + u'/' + row(3), u"1,0,a,h,-1/2,1,b,h,-1/3,c,x,h,-1"_q)
        << "a short row goes on with the next one's fields";
    pasteCells(grid, {1, 1, 5, 4}, u"H\tH\tH\tH\n9\t0\tn\tno\n9\t0\tn\t\n9\t0\tn\toff"_q);
    EXPECT_EQ(row(1) + u'/' + row(2) + u'/' + row(3), u"1,0,n,h,0/2,0,n,h,-1/3,0,x,h,0"_q)
        << "fixed and forbidden cells take a field and stay; an empty one leaves a box; the last line needs no end";
    pasteCells(grid, {5, 2, 5, 2}, u"one\ttwo\r\nthree\tfour\r\n"_q);
    EXPECT_EQ(row(5), u"5,1,one,h,-1"_q);
    clearCells(grid, {4, 1, 5, 4});
    EXPECT_EQ(row(5), u"5,,,h,0"_q) << "hidden columns stay";
}

TEST_F(GridTest, RefusesAPasteOfAnotherKindAsAWhole) {
    grid.ColDataType(2, GridType::Long);
    for (const QString& text : {u"毎週\t1\tperhaps\r\n"_q, u"毎週\tmany\tyes\r\n"_q}) {
        EXPECT_THROW(pasteCells(grid, {1, 1, 1, 4}, u"9\t"_q + text), Complaint);
        EXPECT_EQ(row(1), u"1,1,x,h,-1"_q);
    }
    grid.ColDataType(2, GridType::Date);
    EXPECT_THROW(pasteCells(grid, {1, 2, 1, 2}, u"2026/5/32"_q), Complaint);
}

} // namespace
} // namespace kurbo::test
