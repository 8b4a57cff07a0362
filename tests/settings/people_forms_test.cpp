#include "settings/people/frmAsign.h"

#include "screen/fields/data_combo.h"
#include "screen/fields/data_list.h"
#include "screen/grid/grid.h"
#include "settings/people/frmAccess.h"
#include "settings/people/frmPassword.h"
#include "support/window.h"

#include <QTabWidget>

namespace kurbo::test {
namespace {

class frmAsignTest : public Window<frmAsign> {
  protected:
    frmAsignTest() {
        connection.execute(u"INSERT INTO M04_HolidayStyle (F_HolidayCode, F_HolidayName) VALUES (1, '休日')"_q);
        connection.execute(u"UPDATE M01_CorpInfo SET F_AmHolidayWork = 0, F_PmHolidayWork = 0"_q);
        connection.execute(u"UPDATE M02_StaffInfo SET F_AdjustHours = 1 WHERE (F_StaffCode = '1001')"_q);
    }
    [[nodiscard]] QString text(const char* name) const { return editorOf(&of<QWidget>(name))->text(); }
    void chooseStaff(int row) const {
        of<DataList>("dtsStaff").setCurrentRow(row);
        QTest::qWait(1);
    }
};

TEST_F(frmAsignTest, OneRound) {
    open();
    EXPECT_EQ(text("txtCloseDay"), u"31"_q);
    EXPECT_EQ(text("dcbWeekday"), u"日勤"_q);
    EXPECT_FALSE(of<QWidget>("dcbAmHoliday").isEnabled() || of<QWidget>("cmdWorkTime_2").isEnabled());
    EXPECT_FALSE(isUpdatable());

    type("txtCloseDay", u"28"_q);
    desk.prompts.expect(u"不正な入力です。タイムカード締日は1～27, 31(末締は31)の範囲で入力します。"_q);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::qWait(1);
    EXPECT_EQ(QApplication::focusWidget(), &of<QWidget>("txtCloseDay"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(text("txtCloseDay"), u"31"_q);
    type("txtEnterDelay", {});
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_EQ(text("txtEnterDelay"), u"0"_q);

    type("txtPaid", u"12.5"_q);
    desk.prompts.expect(u"社員設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    chooseStaff(1);
    EXPECT_EQ(of<DataList>("dtsStaff").boundText(), u"1001"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    chooseStaff(1);
    EXPECT_EQ(text("txtPaid"), u"20"_q);
    EXPECT_FALSE(isUpdatable());
}

TEST_F(frmAsignTest, ADeletedSettingShowsBlank) {
    open();
    const QString question =
        u"選択したユーザーの設定を削除します。\r\n削除したユーザーはログインできなくなります。\r\nよろしいですか？"_q;
    desk.prompts.expect(question, Answer::Cancel).expect(question);
    trigger("mnuDelete");
    EXPECT_EQ(text("txtCloseDay"), u"31"_q);
    trigger("mnuDelete");
    EXPECT_EQ(text("txtCloseDay") + text("dcbAccess") + text("txtPassword"), QString());
    trigger("mnuPrint");
    EXPECT_TRUE(desk.prompts.shownTexts().first().contains(u"         ﾊﾟｽﾜｰﾄﾞ：\n"_q));
    desk.prompts.expect(u"パスワードが入力されていません。"_q);
    type("txtLeaveGain", u"5"_q);
    click("cmdUpdate");
    desk.prompts.expect(u"社員設定は変更されています。"_q, Answer::Yes);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(asked(u"SELECT F_StaffName FROM C03_Staff WHERE (F_StaffCode = '1001')"_q), u"山田太郎"_q);
}

// One person's values must never stand under another one's name.
TEST_F(frmAsignTest, AFailedReadingKeepsThePerson) {
    open();
    type("txtPaid", u"12.5"_q);
    connection.engine("ALTER TABLE M02_StaffInfo RENAME TO Gone");
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(u"エラー番号："_q);
    chooseStaff(1);
    EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－ShowStaff"_q));
    EXPECT_EQ(of<DataList>("dtsStaff").boundText() + text("txtPaid"), u"100112.5"_q);
    EXPECT_TRUE(isUpdatable());
    connection.engine("ALTER TABLE Gone RENAME TO M02_StaffInfo");
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_EQ(asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"12.5"_q);
    EXPECT_EQ(asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1002')"_q), u"20"_q);
}

TEST_F(frmAsignTest, ASectionIsAskedAboutOnceAndABadFieldKeepsItsPage) {
    connection.execute(u"INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_Order, F_Display) "
                       "VALUES ('S02', '工場', 2, True)"_q);
    open();
    type("txtCloseDay", u"30"_q);
    desk.prompts.expect(u"タイムカード締日は1～27, 31(末締は31)の範囲で入力します。"_q);
    of<QTabWidget>("tabStaff").setCurrentIndex(1);
    EXPECT_EQ(of<QTabWidget>("tabStaff").currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), &of<QWidget>("txtCloseDay"));
    type("txtCloseDay", u"20"_q);
    desk.prompts.expect(u"社員設定は変更されています。"_q, Answer::No).expect(u"社員設定は"_q, Answer::Yes);
    auto& section = of<DataCombo>("dcbSection");
    for (const auto& [kept, people] : {std::pair{u"S01"_q, 3}, {u"S02"_q, 0}}) {
        section.setFocus();
        section.setBoundText(u"S02"_q);
        Q_EMIT section.activated(section.currentIndex());
        EXPECT_EQ(section.boundText(), kept);
        EXPECT_EQ(of<DataList>("dtsStaff").count(), people);
    }
}

class frmAccessTest : public Window<frmAccess> {
  protected:
    [[nodiscard]] QString shown() const {
        return of<DataList>("dtsAccess").text() + u'/' + of<QLineEdit>("txtAccess").text();
    }
    // By hand, so that the screen hears of it.
    void choose(int row) const {
        of<DataList>("dtsAccess").setCurrentRow(row);
        QTest::qWait(1);
    }
};

TEST_F(frmAccessTest, OneRound) {
    open();
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
    type("txtAccess", u"Reader"_q);
    auto& grid = of<Grid>("vfgAccess");
    grid.setFocus();
    grid.Select(firstAccessRow, static_cast<int>(AccessColumn::FirstRight));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_TRUE(grid.grid()->CellChecked(firstAccessRow, static_cast<int>(AccessColumn::FirstRight)));
    desk.prompts.expect(u"有効なデータが入力されていません。"_q);
    click("cmdUpdate");
    grid.grid()->edit(firstAccessRow, static_cast<int>(AccessColumn::Section), u"所属部課"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_EQ(shown(), u"Reader/Reader"_q);
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_ReadMyKurbo FROM M08_Access WHERE (F_AccessName = 'Reader')"_q), u"-1"_q);

    type("txtAccess", u"Other"_q);
    desk.prompts.expect(u"アクセス権は変更されています。変更を破棄しますか？"_q, Answer::No);
    choose(1);
    EXPECT_EQ(shown(), u"Reader/Other"_q);
    desk.prompts.expect(u"アクセス権設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    EXPECT_FALSE(form->close());
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    choose(1);
    EXPECT_EQ(shown(), u"一般/一般"_q);
}

// One right's boxes must never be stored under another one's code.
TEST_F(frmAccessTest, AFailedReadingKeepsTheRight) {
    open();
    choose(1);
    type("txtAccess", u"Other"_q);
    connection.engine("ALTER TABLE M08_Access RENAME TO Gone");
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(u"エラー番号："_q);
    choose(2);
    EXPECT_EQ(shown(), u"一般/Other"_q);
    connection.engine("ALTER TABLE Gone RENAME TO M08_Access");
    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 2)"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(deletedAccessText());
    choose(2);
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
}

TEST_F(frmAccessTest, WhatIsNeededStays) {
    open();
    desk.prompts.expect(u"「新しいアクセス権」は削除できません。"_q);
    trigger("mnuDelete");
    choose(1);
    desk.prompts.expect(u"表示されているアクセス権は使用されているため削除できません。"_q);
    trigger("mnuDelete");
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 2 WHERE (F_Access = 1)"_q);
    desk.prompts.expect(u"表示されているアクセス権を削除します。\r\n\r\nよろしいですか？"_q);
    trigger("mnuDelete");
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
    EXPECT_EQ(asked(u"SELECT F_AccessName FROM M08_Access WHERE (F_AccessCode = 1)"_q), QString());

    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 0)"_q);
    desk.prompts.expect(u"「新しいアクセス権」が削除されています。"_q);
    open();
    EXPECT_FALSE(of<QWidget>("picAccess").isEnabled());
}

using FrmPassword = Window<frmPassword>;

TEST_F(FrmPassword, StepsShowOneAfterTheOther) {
    open(u"1001"_q);
    EXPECT_EQ(form->windowTitle(), u"Kurbo－パスワード変更"_q);
    desk.prompts.expect(u"現在登録されているパスワードを入力して下さい。"_q);
    QTest::mouseClick(&of<QWidget>("txtNewPassword"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(of<QWidget>("txtOldPassword").hasFocus());
    desk.prompts.expect(u"不正なパスワードです。正しいパスワードを入力して下さい。"_q);
    type("txtOldPassword", u"wrong"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtOldPassword").hasFocus());
    EXPECT_EQ(of("txtOldPassword").text(), QString());
    type("txtOldPassword", u"kurbo1"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtNewPassword").hasFocus());
    EXPECT_FALSE(of<QWidget>("txtConfirm").isVisible());
    const int height = form->height();
    desk.prompts.expect(u"不正な入力です。パスワードは半角英数字10文字以内で入力します。"_q);
    type("txtNewPassword", u"a b"_q);
    press(Qt::Key_Tab);
    type("txtNewPassword", u"abc"_q);
    EXPECT_TRUE(of<QWidget>("lblConfirm").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(form->height(), height);
    type("txtConfirm", u"abd"_q);
    EXPECT_TRUE(of<QWidget>("cmdOK").isEnabled());
    desk.prompts.expect(u"確認用パスワードが新しいパスワードと異なります。"_q);
    press(Qt::Key_Return);
    EXPECT_EQ(of("txtNewPassword").text() + of("txtConfirm").text(), u"abc"_q);
    EXPECT_TRUE(of<QWidget>("txtConfirm").hasFocus());
    EXPECT_FALSE(of<QWidget>("cmdOK").isEnabled());
    type("txtConfirm", u"abc"_q);
    of("txtNewPassword").clear();
    EXPECT_FALSE(of<QWidget>("txtConfirm").isVisible());
    EXPECT_EQ(of("txtConfirm").text(), QString());
    type("txtNewPassword", u"abc"_q);
    const QString leave = u"パスワードは変更されています。変更を破棄しますか？"_q;
    desk.prompts.expect(leave, Answer::No);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form->isVisible());
    type("txtConfirm", u"abc"_q);
    click("cmdOK");
    QCoreApplication::processEvents();
    EXPECT_TRUE(!form || !form->isVisible());
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"abc"_q);
}

TEST_F(FrmPassword, AFailedWriteLeavesTheDialog) {
    open(u"1001"_q);
    type("txtOldPassword", u"kurbo1"_q);
    type("txtNewPassword", u"abc"_q);
    type("txtConfirm", u"abc"_q);
    connection.engine("CREATE TRIGGER Refused BEFORE UPDATE ON M02_StaffInfo BEGIN SELECT RAISE(ABORT, 'no'); END");
    desk.prompts.expect(u"エラー番号："_q).expect(u"新しいパスワードの登録に失敗しました。"_q);
    click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"kurbo1"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    click("cmdCancel");
    EXPECT_TRUE(!form || !form->isVisible());
}

} // namespace
} // namespace kurbo::test
