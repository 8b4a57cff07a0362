#include "screen/fields/data_combo.h"
#include "screen/fields/data_list.h"
#include "screen/fields/masked_box.h"
#include "settings/records/frmCorp.h"
#include "settings/records/frmSection.h"
#include "settings/records/frmStaff.h"
#include "support/window.h"

#include <QRadioButton>

namespace kurbo::test {
namespace {

const QString update = u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q;

using FrmCorp = Window<frmCorp>;
using FrmSection = Window<frmSection>;
using FrmStaff = Window<frmStaff>;

TEST_F(FrmCorp, IsTypedRefusedStoredAndPrinted) {
    open();
    EXPECT_EQ(form->windowTitle(), u"Kurbo－会社情報登録"_q);
    EXPECT_FALSE(isUpdatable());
    EXPECT_FALSE(of<QWidget>("txtCorp").inputMethodHints() & Qt::ImhPreferLatin);
    EXPECT_TRUE(of<QWidget>("txtTel").inputMethodHints() & Qt::ImhPreferLatin);
    type("txtBranch", QString(26, u'漢'));
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(u"不正な入力です。支社店名は"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtBranch").hasFocus());
    type("txtBranch", u"大阪'%支店"_q);
    type("cboPref", u"大阪府"_q);
    QApplication::activePopupWidget()->hide();
    type("txtCorp", u" "_q);
    desk.prompts.expect(u"会社名が入力されていません。"_q);
    trigger("mnuUpdate");
    type("txtCorp", u"𠮷田商事"_q);
    desk.prompts.expect(update, Answer::Cancel).expect(update);
    click("cmdUpdate");
    EXPECT_TRUE(isUpdatable());
    click("cmdUpdate");
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_Corp & F_Branch & F_Pref FROM C01_Corp"_q), u"𠮷田商事大阪'%支店27"_q);
    type("txtTel", u"06"_q);
    click("cmdPrint");
    EXPECT_EQ(desk.prompts.shownTexts().constLast(),
              u"会社情報登録  (2026/04/15 現在)\n      会社名：𠮷田商事\n    支社店名：大阪'%支店\n    郵便番号：\n"
              u"    都道府県：大阪府\n       住所1：\n       住所2：\n    電話番号：06\n     FAX番号：\n"
              u"  代表者肩書：\n    代表者名：\n"_q);
    const QString leave = u"会社情報は変更されています。変更を破棄しますか？"_q;
    desk.prompts.expect(leave, Answer::No).expect(leave, Answer::Yes);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form->isVisible());
    press(Qt::Key_Escape);
    EXPECT_TRUE(!form || !form->isVisible());
}

TEST_F(FrmSection, SectionsAreAddedMovedAndRemoved) {
    open();
    auto& list = of<DataList>("dtsSection");
    EXPECT_EQ(list.text() + of("txtCode").text() + of("txtName").text(), u"新しい部課新しい部課"_q);
    desk.prompts.expect(u"部課名を変更して下さい。"_q);
    type("txtCode", u"s9"_q);
    click("cmdUpdate");
    type("txtName", u"研究所"_q);
    desk.prompts.expectFile(u"/srv/Lab/Store.mdb"_q).expect(update);
    click("cmdDB");
    EXPECT_EQ(desk.prompts.lastFileQuestion().filter, u"DBﾌｧｲﾙ(*.mdb)|*.mdb"_q);
    click("cmdUpdate");
    EXPECT_EQ(list.boundText(), u"s9"_q);
    EXPECT_EQ(of("txtCode").text(), u"s9"_q);
    type("txtTel", u"03"_q);
    click("cmdUp");
    EXPECT_EQ(list.currentRow(), 1);
    click("cmdUp");
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(of("txtTel").text(), u"03"_q) << "a move keeps what was typed";
    click("cmdPrint");
    EXPECT_EQ(desk.prompts.shownTexts().constLast(),
              u"部課情報登録  (2026/04/15 現在)\n    部課名：研究所\n  部課ｺｰﾄﾞ：s9\n  電話番号：03\n   FAX番号：\n"
              u"    DBﾌｧｲﾙ：/srv/Lab/Store.mdb\n      表示：する\n"_q);
    const QString leave = u"部課情報は変更されています。変更を破棄しますか？"_q;
    desk.prompts.expect(leave, Answer::No).expect(leave, Answer::Yes);
    list.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(list.boundText(), u"s9"_q);
    press(Qt::Key_Down);
    EXPECT_EQ(of("txtCode").text(), u"S01"_q);
    desk.prompts.expect(u"表示されている部課は使用されているため削除できません。"_q);
    trigger("mnuDelete");
    press(Qt::Key_Up);
    desk.prompts.expect(u"表示されている部課を削除します。"_q);
    trigger("mnuDelete");
    EXPECT_EQ(list.boundText(), u"NEW"_q);
    EXPECT_EQ(count(u"C02_Section"_q), 2);
    desk.prompts.expect(u"新しい部課は削除できません。"_q);
    trigger("mnuDelete");
}

TEST_F(FrmSection, OthersCanBeChangedWithoutTheReservedOne) {
    connection.execute(u"DELETE FROM C02_Section WHERE (F_SectionCode = 'NEW')"_q);
    desk.prompts.expect(u"「新しい部課」が削除されています。"_q);
    open();
    EXPECT_FALSE(of<QWidget>("picSection").isEnabled());
    of<DataList>("dtsSection").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(of("txtName").text(), u"総務部"_q);
    EXPECT_TRUE(of<QWidget>("picSection").isEnabled());
}

TEST_F(FrmStaff, PeopleAreTypedCheckedAndStored) {
    open();
    auto& list = of<DataList>("dtsStaff");
    type("txtName", u"𠮷田　'花'"_q);
    type("txtKana", u"ﾖｼﾀﾞ ﾊﾅ"_q);
    type("txtCode", u"new"_q);
    desk.prompts.expect(u"不正な入力です。「NEW」はシステム予約コードです。"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtCode").hasFocus());
    type("txtCode", u"A-1"_q);
    type("dcbSection", u"総務部"_q);
    type("mskBirthday", u"19800115"_q);
    type("mskJoin", u"20100401"_q);
    EXPECT_EQ(of<QLabel>("lblAge").text() + of<QLabel>("lblYear").text(), u"年齢：46歳3月勤続：16年"_q);
    type("mskRetire", u"20201"_q);
    EXPECT_EQ(of<QLabel>("lblYear").text(), QString());
    desk.prompts.expect(u"不正な入力です。退社日は"_q);
    press(Qt::Key_Tab);
    of<MaskedBox>("mskRetire").clear();
    of<QRadioButton>("optSex_1").click();
    desk.prompts.expect(update);
    click("cmdUpdate");
    EXPECT_EQ(list.boundText(), u"A-1"_q);
    EXPECT_EQ(asked(u"SELECT F_StaffName & F_Section & F_Sex & F_Birth FROM C03_Staff "
                    "WHERE (F_StaffCode = 'A-1')"_q),
              u"𠮷田　'花'S0111980-01-15 00:00:00"_q);
    click("cmdPrint");
    const QString listing = desk.prompts.shownTexts().constLast();
    for (const QString& line :
         {u"  所属部課：S01 (総務部)\n"_q, u"  生年月日：1980/01/15 (年齢：46歳3月)\n"_q,
          u"      性別：女\n    入社日：2010/04/01 (勤続：16年)\n    退社日：\n      表示：する\n"_q})
        EXPECT_TRUE(listing.contains(line)) << listing;
    connection.execute(u"DELETE FROM C03_Staff WHERE (F_StaffCode = 'A-1')"_q);
    type("txtTel", u"03"_q);
    desk.prompts.expect(update).expect(u"エラー番号："_q).expect(u"追加・変更を更新できませんでした。"_q);
    click("cmdUpdate");
    EXPECT_TRUE(isUpdatable());
}

TEST_F(FrmStaff, NothingOpensWithoutTheReservedPerson) {
    connection.execute(u"DELETE FROM C03_Staff WHERE (F_StaffCode = 'NEW')"_q);
    desk.prompts.expect(u"「新しい社員」が削除されています。"_q);
    open();
    for (const char* part : {"picList", "picStaff", "cmdUpdate"}) EXPECT_FALSE(of<QWidget>(part).isEnabled()) << part;
}

} // namespace
} // namespace kurbo::test
