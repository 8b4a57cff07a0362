#include "maintenance/frmDeleteDest.h"

#include "maintenance/purge_office.h"
#include "screen/grid/grid.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace kurbo::test {

TEST_F(PurgeOffice, DeletesFromTheWindow) {
    logIn(u"1001"_q);
    const QPointer<frmDeleteDest> form = new frmDeleteDest(client);
    form->load();
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    Grid& grid = *form->findChild<Grid*>(u"vfgDestination"_q);
    auto* const cmdExec = form->findChild<QPushButton*>(u"cmdExec"_q);
    EXPECT_FALSE(grid.selectionModel()->hasSelection());

    desk.prompts.expect(u"よろしいですか？"_q, Answer::Cancel);
    cmdExec->click();
    EXPECT_EQ(stored(), u"123456"_q);
    EXPECT_FALSE(grid.selectionModel()->hasSelection());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 3)).center());
    desk.prompts.expect(u"よろしいですか？"_q, Answer::Cancel);
    cmdExec->click();
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1) << "whole rows, and still after a second thought";
    desk.prompts.expect(u"よろしいですか？"_q);
    cmdExec->click();
    EXPECT_EQ(stored(), u"12346"_q);
    desk.prompts.expect(u"よろしいですか？"_q);
    cmdExec->click();
    EXPECT_EQ(stored(), u"1246"_q) << "an unselected grid means all";
    desk.prompts.expect(u"削除するデータがありません。"_q);
    cmdExec->click();
    QTest::keyClick(&grid, Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
}

} // namespace kurbo::test
