#include "maintenance/frmMaintainance.h"

#include "maintenance/old_days.h"
#include "screen/fields/masked_box.h"
#include "support/window.h"

#include <QRadioButton>

namespace kurbo::test {
namespace {

class FrmMaintainance : public Window<frmMaintainance, OldDays> {
  protected:
    FrmMaintainance() {
        connection.close();
        show();
    }
    [[nodiscard]] QString text(const char* name) const { return of<MaskedBox>(name).maskText(); }
    [[nodiscard]] bool canMove() const { return of<QPushButton>("cmdExec").isEnabled(); }
};

} // namespace

TEST_F(FrmMaintainance, OffersWhatHasPassedAndMovesIt) {
    EXPECT_EQ(form->windowTitle(), u"Kurbo－データ移動"_q);
    EXPECT_EQ(of<QLabel>("lblSourceDB").text(), path);
    EXPECT_EQ(text("mskStartDay") + text("mskEndDay"), u"2026/01/012026/03/31"_q);
    EXPECT_EQ(text("mskStartMonth") + text("mskEndMonth"), u"2025/122026/04"_q);
    EXPECT_FALSE(canMove());
    desk.prompts.expectFile(destination);
    click("cmdDB");
    EXPECT_EQ(desk.prompts.lastFileQuestion().defaultExtension, u"mdb"_q);
    EXPECT_EQ(desk.prompts.lastFileQuestion().filter, u"DBﾌｧｲﾙ(*.mdb)|*.mdb"_q);
    EXPECT_TRUE(canMove());

    desk.prompts.expect(u"よろしいですか？"_q).expect(u"データ移動が完了しました。"_q);
    click("cmdExec");
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(client.HomeConnection.firstValue(u"SELECT Count(*) FROM T02_Kurbo"_q), Value(14));
    EXPECT_EQ(contentsOf(destination).cards.size(), 90);
}

TEST_F(FrmMaintainance, ItsFieldsDecideWhetherItCanMove) {
    auto* const txtDestDB = &of<QLineEdit>("txtDestDB");
    txtDestDB->setText(destination);
    EXPECT_FALSE(of<QWidget>("mskStartMonth").isEnabled());
    click("optMethod_1");
    EXPECT_TRUE(of<QWidget>("mskEndMonth").isEnabled() && of<QWidget>("udcEndMonth").isEnabled());
    EXPECT_TRUE(canMove());
    of<MaskedBox>("mskEndMonth").clear();
    EXPECT_FALSE(canMove());
    click("optMethod_0");
    EXPECT_TRUE(canMove());

    QTest::keyClick(&of<QWidget>("mskStartDay"), Qt::Key_Up);
    QTest::keyClick(&of<QWidget>("mskEndDay"), Qt::Key_Down);
    EXPECT_EQ(text("mskStartDay") + text("mskEndDay"), u"2026/01/022026/03/30"_q);
    click("optMethod_1");
    QTest::keyClick(&of<QWidget>("mskStartMonth"), Qt::Key_Up);
    EXPECT_EQ(text("mskStartMonth"), u"2026/01"_q);

    txtDestDB->setFocus();
    txtDestDB->setText(u"/none/old.mdb"_q);
    desk.prompts.expect(u"DBの移動先パスが見つかりません。"_q);
    QTest::keyClick(txtDestDB, Qt::Key_Tab);
    QTRY_VERIFY_WITH_TIMEOUT(desk.prompts.allShown(), 1000);
    EXPECT_EQ(QApplication::focusWidget(), txtDestDB);
    desk.prompts.expectFile(destination);
    QTest::mouseClick(&of<QPushButton>("cmdDB"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(txtDestDB->text(), destination) << "a bad path can be chosen anew";
}

} // namespace kurbo::test
