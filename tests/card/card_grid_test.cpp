#include "card/card_grid.h"
#include "support/desk.h"

namespace kurbo::test {

TEST(CardGrid, ShowsTheCard) {
    Card card;
    card.headings = QStringList(cardColumns, u"h"_q);
    for (QStringList& row : card.summary) row = QStringList(cardColumns, u"0"_q);
    for (const QString& type : {u""_q, u"3"_q, u"1"_q}) {
        QStringList row(cardColumns, u"x"_q);
        row[2] = type;
        card.days.append(row);
    }
    card.hidden[24] = true;
    GridModel grid;
    fillCardGrid(grid, card);
    EXPECT_EQ(grid.Rows(), 7);
    EXPECT_EQ(grid.FixedRows() + grid.FrozenRows(), firstCardDay);
    EXPECT_EQ(grid.CellText(5, 2), u"法定休日"_q);
    EXPECT_EQ(grid.TextMatrix(5, 2), u"3"_q) << "the code is held, the word is shown";
    EXPECT_EQ(grid.CellText(0, 2), u"h"_q);
    EXPECT_EQ(grid.CellForeColor(5, 1), (GridColour{255, 0, 0}));
    EXPECT_EQ(grid.CellForeColor(6, 1), (GridColour{0, 0, 255}));
    EXPECT_FALSE(grid.CellForeColor(4, 1));
    EXPECT_TRUE(grid.ColHidden(24));
    EXPECT_FALSE(grid.ColHidden(23));
    EXPECT_EQ(grid.RowStatus(4), GridStatus::None);
}

} // namespace kurbo::test
