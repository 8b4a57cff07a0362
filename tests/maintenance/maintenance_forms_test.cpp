#include "maintenance/frmDeleteDest.h"
#include "maintenance/frmMaintainance.h"
#include "maintenance/old_days.h"
#include "maintenance/purge_office.h"
#include "support/window.h"

namespace kurbo::test {
namespace {

using FrmDeleteDest = Window<frmDeleteDest, PurgeOffice>;

TEST_F(FrmDeleteDest, DeletesFromTheWindow) {
    logIn(u"1001"_q);
    show();
    auto& grid = of<Grid>("vfgDestination");
    const auto execute = [this](Answer answer) {
        desk.prompts.expect(u"よろしいですか？"_q, answer);
        click("cmdExec");
        return stored();
    };
    EXPECT_EQ(execute(Answer::Cancel), u"123456"_q);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 3)).center());
    EXPECT_EQ(execute(Answer::Ok), u"12346"_q);
    EXPECT_EQ(execute(Answer::Ok), u"1246"_q) << "an unselected grid means all";
    desk.prompts.expect(u"削除するデータがありません。"_q);
    click("cmdExec");
}

class FrmMaintainance : public Window<frmMaintainance, OldDays> {
  protected:
    FrmMaintainance() {
        connection.close();
        show();
    }
    [[nodiscard]] bool canMove() const { return of<QWidget>("cmdExec").isEnabled(); }
};

TEST_F(FrmMaintainance, OffersWhatHasPassedAndMovesIt) {
    EXPECT_EQ(text("mskStartDay") + text("mskEndDay"), u"2026/01/012026/03/31"_q);
    EXPECT_EQ(text("mskStartMonth") + text("mskEndMonth"), u"2025/122026/04"_q);
    EXPECT_FALSE(canMove());
    desk.prompts.expectFile(destination);
    click("cmdDB");
    desk.prompts.expect(u"よろしいですか？"_q).expect(u"データ移動が完了しました。"_q);
    click("cmdExec");
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(contentsOf(destination).cards.size(), 90);
}

TEST_F(FrmMaintainance, ItsFieldsDecideWhetherItCanMove) {
    of("txtDestDB").setText(destination);
    EXPECT_FALSE(of<QWidget>("mskStartMonth").isEnabled());
    click("optMethod_1");
    EXPECT_TRUE(canMove());
    of("mskEndMonth").clear();
    EXPECT_FALSE(canMove());
    QTest::keyClick(&of<QWidget>("mskStartMonth"), Qt::Key_Up);
    click("optMethod_0");
    EXPECT_TRUE(canMove());
    QTest::keyClick(&of<QWidget>("mskEndDay"), Qt::Key_Down);
    EXPECT_EQ(text("mskStartMonth") + text("mskEndDay"), u"2026/012026/03/30"_q);
}

} // namespace
} // namespace kurbo::test
