#include "card/card_grid.h"
#include "support/desk.h"

#include <QAbstractItemModelTester>

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
    const QAbstractItemModelTester tester(&grid, QAbstractItemModelTester::FailureReportingMode::Fatal);
    fillCardGrid(grid, card);
    EXPECT_EQ(grid.rowCount(), 7);
    EXPECT_EQ(grid.fixedRows(), 4);
    EXPECT_EQ(grid.shownText(5, 2), u"法定休日"_q);
    EXPECT_EQ(grid.text(5, 2), u"3"_q) << "the code is held, the word is shown";
    EXPECT_EQ(grid.shownText(1, 2), u"0"_q) << "fixed rows show their texts";
    EXPECT_EQ(grid.colour(5, 1), (GridColour{255, 0, 0}));
    EXPECT_EQ(grid.colour(6, 1), (GridColour{0, 0, 255}));
    EXPECT_FALSE(grid.colour(4, 1));
    EXPECT_TRUE(grid.isColumnHidden(24));
    EXPECT_FALSE(grid.isColumnHidden(23));
    EXPECT_EQ(grid.text(99, 0) + grid.text(0, 25), QString());
    grid.setText(4, 3, u"出張"_q);
    EXPECT_EQ(grid.data(grid.index(4, 3), Qt::DisplayRole).toString(), u"出張"_q);
    grid.reset(0, 0, 0);
    EXPECT_EQ(grid.rowCount(), 0);
}

} // namespace kurbo::test
