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

const QString discard = u"変更を破棄しますか？"_q;

class FrmAsign : public Window<frmAsign> {
  protected:
    FrmAsign() {
        insert("M04_HolidayStyle", "HolidayCode, HolidayName", u"1, '休日'"_q);
        insert("C02_Section", "SectionCode, SectionName, Order, Display", u"'S02', '工場', 2, True"_q);
        connection.execute(u"UPDATE M01_CorpInfo SET F_AmHolidayWork = 0, F_PmHolidayWork = 0"_q);
        open();
    }
    [[nodiscard]] QString shown() const { return of<DataList>("dtsStaff").boundText() + u' ' + text("txtPaid"); }
};

TEST_F(FrmAsign, ABadFieldKeepsItsPageAndPeopleAndSectionsAreAskedAbout) {
    EXPECT_FALSE(of<QWidget>("dcbAmHoliday").isEnabled() || of<QWidget>("cmdWorkTime_2").isEnabled());
    type("txtCloseDay", u"28"_q);
    const QString limits = u"不正な入力です。タイムカード締日は1～27, 31(末締は31)の範囲で入力します。"_q;
    desk.prompts.expect(limits).expect(limits);
    press(Qt::Key_Tab);
    of<QTabWidget>("tabStaff").setCurrentIndex(1);
    EXPECT_EQ(of<QTabWidget>("tabStaff").currentIndex(), 0);
    type("txtCloseDay", u"31"_q);
    type("txtPaid", u"12.5"_q);
    desk.prompts.expect(u"社員設定は変更されています。"_q + discard, Answer::No).expect(discard, Answer::Yes);
    choose("dtsStaff", 1);
    EXPECT_EQ(shown(), u"1001 12.5"_q);
    choose("dtsStaff", 1);
    EXPECT_EQ(shown(), u"1002 20"_q);
    type("txtPaid", u"5"_q);
    desk.prompts.expect(discard, Answer::No);
    auto& section = of<DataCombo>("dcbSection");
    section.setBoundText(u"S02"_q);
    Q_EMIT section.activated(section.currentIndex());
    EXPECT_EQ(section.boundText(), u"S01"_q);
    EXPECT_EQ(shown(), u"1002 5"_q);
}

TEST_F(FrmAsign, ADeletedSettingShowsBlank) {
    const QString question =
        u"選択したユーザーの設定を削除します。\r\n削除したユーザーはログインできなくなります。\r\nよろしいですか？"_q;
    desk.prompts.expect(question);
    trigger("mnuDelete");
    EXPECT_EQ(text("txtCloseDay") + text("dcbAccess") + text("txtPassword"), QString());
}

// One person's values must never stand under another one's name.
TEST_F(FrmAsign, AFailedReadingKeepsThePerson) {
    type("txtPaid", u"12.5"_q);
    connection.engine("ALTER TABLE M02_StaffInfo RENAME TO Gone");
    desk.prompts.expect(discard, Answer::Yes).expect(u"エラー番号："_q);
    choose("dtsStaff", 1);
    EXPECT_EQ(shown(), u"1001 12.5"_q);
    EXPECT_TRUE(isUpdatable());
    connection.engine("ALTER TABLE Gone RENAME TO M02_StaffInfo");
    of<DataCombo>("dcbAdjust").setBoundText(u"1"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    const auto paid = u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '%1')"_q;
    EXPECT_EQ(asked(paid.arg(u"1001"_q)) + u' ' + asked(paid.arg(u"1002"_q)), u"12.5 20"_q);
}

class FrmAccess : public Window<frmAccess> {
  protected:
    FrmAccess() { open(); }
    [[nodiscard]] QString shown() const { return of<DataList>("dtsAccess").text() + u'/' + text("txtAccess"); }
    const QString fresh = u"新しいアクセス権/新しいアクセス権"_q;
};

TEST_F(FrmAccess, WhatIsNeededStays) {
    desk.prompts.expect(u"「新しいアクセス権」は削除できません。"_q)
        .expect(u"表示されているアクセス権は使用されているため削除できません。"_q)
        .expect(u"表示されているアクセス権を削除します。\r\n\r\nよろしいですか？"_q);
    trigger("mnuDelete");
    choose("dtsAccess", 1);
    trigger("mnuDelete");
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 2 WHERE (F_Access = 1)"_q);
    trigger("mnuDelete");
    EXPECT_EQ(shown(), fresh);
    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 0)"_q);
    desk.prompts.expect(u"「新しいアクセス権」が削除されています。"_q);
    open();
}

// One right's boxes must never be stored under another one's code.
TEST_F(FrmAccess, AFailedReadingKeepsTheRight) {
    choose("dtsAccess", 1);
    type("txtAccess", u"Other"_q);
    connection.engine("ALTER TABLE M08_Access RENAME TO Gone");
    desk.prompts.expect(discard, Answer::Yes).expect(u"エラー番号："_q);
    choose("dtsAccess", 2);
    EXPECT_EQ(shown(), u"一般/Other"_q);
    connection.engine("ALTER TABLE Gone RENAME TO M08_Access");
    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 2)"_q);
    desk.prompts.expect(discard, Answer::Yes).expect(deletedAccessText());
    choose("dtsAccess", 2);
    EXPECT_EQ(shown(), fresh);
}

using FrmPassword = Window<frmPassword>;

TEST_F(FrmPassword, StepsShowOneAfterTheOther) {
    open(u"1001"_q);
    desk.prompts.expect(u"現在登録されているパスワードを入力して下さい。"_q)
        .expect(u"不正なパスワードです。正しいパスワードを入力して下さい。"_q);
    press(Qt::Key_Tab);
    type("txtOldPassword", u"wrong"_q);
    press(Qt::Key_Tab);
    type("txtOldPassword", u"kurbo1"_q);
    press(Qt::Key_Tab);
    EXPECT_FALSE(of<QWidget>("txtConfirm").isVisible());
    type("txtNewPassword", u"abc"_q);
    type("txtConfirm", u"abd"_q);
    desk.prompts.expect(u"確認用パスワードが新しいパスワードと異なります。"_q);
    press(Qt::Key_Return);
    EXPECT_EQ(text("txtNewPassword") + text("txtConfirm"), u"abc"_q);
    desk.prompts.expect(u"パスワードは変更されています。"_q + discard, Answer::No);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form->isVisible());
    type("txtConfirm", u"abc"_q);
    connection.engine("ALTER TABLE M02_StaffInfo RENAME TO Gone");
    desk.prompts.expect(u"エラー番号："_q).expect(u"新しいパスワードの登録に失敗しました。"_q);
    click("cmdOK");
    connection.engine("ALTER TABLE Gone RENAME TO M02_StaffInfo");
    click("cmdOK");
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"abc"_q);
}

} // namespace
} // namespace kurbo::test
