#include "settings/frmWorkStyle.h"

#include "settings/settings_window.h"

#include <QDir>
#include <QTabWidget>

namespace kurbo::test {
namespace {

using frmWorkStyleTest = SettingsWindow<frmWorkStyle>;

TEST_F(frmWorkStyleTest, OneRound) {
    open();
    EXPECT_FALSE(mayUpdate());
    click("chkFlex");
    EXPECT_TRUE(mayUpdate());
    EXPECT_TRUE(find<QWidget>("mskTime")->isEnabled());
    EXPECT_FALSE(find<QWidget>("chkDisplay_1")->isEnabled());

    // Refused, then called off: nothing is stored, and the screen keeps its changes.
    desk.prompts.expect(u"平日勤務の標準労働時間が入力されていません。"_q);
    click("cmdUpdate");
    type("mskTime", u"0745"_q);
    desk.prompts.expect(u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q, Answer::Cancel);
    trigger("mnuUpdate");
    EXPECT_TRUE(mayUpdate());
    EXPECT_EQ(asked(u"SELECT F_WorkStyle FROM M01_CorpInfo"_q), u"0"_q);

    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_FALSE(mayUpdate());
    EXPECT_EQ(asked(u"SELECT F_FlexStandard FROM M01_CorpInfo"_q), u"07:45"_q);
    open();
    EXPECT_EQ(editorOf(find<QWidget>("mskTime"))->displayText(), u"07:45"_q);
    EXPECT_FALSE(mayUpdate());
}

TEST_F(frmWorkStyleTest, ControlsFollowEachOther) {
    open();
    click("optHour_0");
    click("optMethod_1");
    EXPECT_TRUE(find<QAbstractButton>("optHour_1")->isChecked());
    EXPECT_FALSE(find<QWidget>("fraHour")->isEnabled());
    EXPECT_FALSE(find<QWidget>("optEnter_0")->isEnabled());
    EXPECT_TRUE(find<QWidget>("optRound_1")->isEnabled());
    click("chkAmFlex");
    EXPECT_TRUE(find<QWidget>("mskAmTime")->isEnabled());
    click("chkAmHoliday");
    for (const char* name : {"chkAmFlex", "optAmWork_2", "lblAmTime", "mskAmTime"})
        EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
    click("chkAmHoliday");
    EXPECT_TRUE(find<QWidget>("mskAmTime")->isEnabled());
    desk.prompts.expect(u"勤務形態設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    EXPECT_FALSE(form->close());
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(frmWorkStyleTest, ABadFieldKeepsTheFocus) {
    open();
    find<QTabWidget>("tabStyle")->setCurrentIndex(1);
    type("txtUnit", u"61"_q);
    desk.prompts.expect(u"不正な入力です。1～60の整数を入力して下さい。"_q);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::qWait(1);
    EXPECT_EQ(QApplication::focusWidget(), find<QWidget>("txtUnit"));
    desk.prompts.expect(u"端数処理単位が不正です。"_q);
    click("cmdUpdate");
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
    EXPECT_FALSE(find<QWidget>("tabStyle")->isEnabled());
    EXPECT_FALSE(mayUpdate());
    EXPECT_TRUE(form->close());
}

} // namespace
} // namespace kurbo::test
