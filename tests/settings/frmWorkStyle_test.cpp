#include "settings/work_style/frmWorkStyle.h"

#include "support/window.h"

#include <QDir>
#include <QTabWidget>

namespace kurbo::test {
namespace {

using frmWorkStyleTest = Window<frmWorkStyle>;

TEST_F(frmWorkStyleTest, OneRound) {
    open();
    EXPECT_FALSE(isUpdatable());
    click("chkFlex");
    EXPECT_TRUE(isUpdatable());
    EXPECT_TRUE(of<QWidget>("mskTime").isEnabled());
    EXPECT_FALSE(of<QWidget>("chkDisplay_1").isEnabled());

    // Refused, then called off: nothing is stored, and the screen keeps its changes.
    desk.prompts.expect(u"平日勤務の標準労働時間が入力されていません。"_q);
    click("cmdUpdate");
    type("mskTime", u"0745"_q);
    desk.prompts.expect(u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q, Answer::Cancel);
    trigger("mnuUpdate");
    EXPECT_TRUE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_WorkStyle FROM M01_CorpInfo"_q), u"0"_q);

    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_FlexStandard FROM M01_CorpInfo"_q), u"07:45"_q);
    open();
    EXPECT_EQ(editorOf(&of<QWidget>("mskTime"))->displayText(), u"07:45"_q);
    EXPECT_FALSE(isUpdatable());
}

TEST_F(frmWorkStyleTest, ControlsFollowEachOther) {
    open();
    click("optHour_0");
    click("optMethod_1");
    EXPECT_TRUE(of<QAbstractButton>("optHour_1").isChecked());
    EXPECT_FALSE(of<QWidget>("fraHour").isEnabled());
    EXPECT_FALSE(of<QWidget>("optEnter_0").isEnabled());
    EXPECT_TRUE(of<QWidget>("optRound_1").isEnabled());
    click("chkAmFlex");
    EXPECT_TRUE(of<QWidget>("mskAmTime").isEnabled());
    click("chkAmHoliday");
    for (const char* name : {"chkAmFlex", "optAmWork_2", "lblAmTime", "mskAmTime"})
        EXPECT_FALSE(of<QWidget>(name).isEnabled()) << name;
    click("chkAmHoliday");
    EXPECT_TRUE(of<QWidget>("mskAmTime").isEnabled());
    desk.prompts.expect(u"勤務形態設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    EXPECT_FALSE(form->close());
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(frmWorkStyleTest, ABadFieldKeepsTheFocus) {
    open();
    of<QTabWidget>("tabStyle").setCurrentIndex(1);
    type("txtUnit", u"61"_q);
    desk.prompts.expect(u"不正な入力です。1～60の整数を入力して下さい。"_q);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::qWait(1);
    EXPECT_EQ(QApplication::focusWidget(), &of<QWidget>("txtUnit"));
    desk.prompts.expect(u"端数処理単位が不正です。"_q);
    click("cmdUpdate");
    of<QLineEdit>("txtUnit").clear();
    of<QTabWidget>("tabStyle").setCurrentIndex(0);
    desk.prompts.expect(u"端数処理単位が入力されていません。"_q);
    click("cmdUpdate");
    EXPECT_EQ(of<QTabWidget>("tabStyle").currentIndex(), 1) << "the page comes forward";
    EXPECT_EQ(form->focusWidget(), &of<QWidget>("txtUnit"));
}

TEST_F(frmWorkStyleTest, TheListingHoldsWhatIsNotYetStored) {
    open();
    type("txtUnit", u"5"_q);
    trigger("mnuPrint");
    ASSERT_EQ(desk.prompts.shownTexts().size(), 1);
    EXPECT_TRUE(desk.prompts.shownTexts().first().startsWith(u"勤務形態設定  (2026/04/15 現在)\n"_q));
    EXPECT_TRUE(desk.prompts.shownTexts().first().contains(u"    端数処理単位(分)：5\n"_q));
    QFile::remove(desk.paths.PrintPath);
    ASSERT_TRUE(QDir().mkdir(desk.paths.PrintPath));
    desk.prompts.expect(u"エラー番号："_q);
    click("cmdPrint");
    EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－PrintWorkStyle"_q));
}

// A file that has gone is told once, and the window can only be closed.
TEST_F(frmWorkStyleTest, AFailedLoadLeavesNothingToDo) {
    connection.close();
    client.DbPath = path;
    client.openHome();
    client.HomeConnection.engine("ALTER TABLE M01_CorpInfo RENAME TO Gone");
    desk.prompts.expect(u"エラー番号："_q);
    open();
    EXPECT_FALSE(of<QWidget>("tabStyle").isEnabled());
    EXPECT_FALSE(isUpdatable());
    EXPECT_TRUE(form->close());
}

} // namespace
} // namespace kurbo::test
