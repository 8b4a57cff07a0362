#include "maintenance/frmDeleteDest.h"

#include "maintenance/purge_office.h"
#include "screen/grid/grid.h"
#include "support/window.h"

namespace kurbo::test {

using FrmDeleteDest = Window<frmDeleteDest, PurgeOffice>;

TEST_F(FrmDeleteDest, DeletesFromTheWindow) {
    logIn(u"1001"_q);
    show();
    auto& grid = of<Grid>("vfgDestination");
    EXPECT_FALSE(grid.selectionModel()->hasSelection());

    desk.prompts.expect(u"よろしいですか？"_q, Answer::Cancel);
    click("cmdExec");
    EXPECT_EQ(stored(), u"123456"_q);
    EXPECT_FALSE(grid.selectionModel()->hasSelection());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 3)).center());
    desk.prompts.expect(u"よろしいですか？"_q, Answer::Cancel);
    click("cmdExec");
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1) << "whole rows, and still after a second thought";
    desk.prompts.expect(u"よろしいですか？"_q);
    click("cmdExec");
    EXPECT_EQ(stored(), u"12346"_q);
    desk.prompts.expect(u"よろしいですか？"_q);
    click("cmdExec");
    EXPECT_EQ(stored(), u"1246"_q) << "an unselected grid means all";
    desk.prompts.expect(u"削除するデータがありません。"_q);
    click("cmdExec");
    QTest::keyClick(&grid, Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
}

} // namespace kurbo::test
