#include "screen/fields/data_combo.h"
#include "screen/fields/data_list.h"
#include "settings/people/frmAccess.h"
#include "settings/people/frmAsign.h"
#include "settings/records/frmCorp.h"
#include "settings/records/frmSection.h"
#include "settings/records/frmStaff.h"
#include "settings/work_style/frmWorkStyle.h"
#include "settings/work_time/frmWorkTime.h"
#include "support/window.h"

#include <QDir>
#include <QRadioButton>
#include <QTabWidget>

namespace kurbo::test {
namespace {

const QString update = u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q;

template <typename Form>
SettingsForm* make(Client& client) {
    return new Form(client);
}

// A settings screen, a field of it, what it calls itself, and a table that it can't do without.
struct Screen {
    SettingsForm* (*make)(Client&);
    const char* field;
    QString subject;
    const char* table;
};

class SettingsScreens : public SampleCompany {
  protected:
    SettingsScreens() {
        client.session.SessionStaff = u"ADMIN"_q;
        client.openHome();
    }
    ~SettingsScreens() override { delete form; }
    void show(const Screen& screen) {
        delete form;
        form = screen.make(client);
        form->load();
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    }
    QPointer<SettingsForm> form;
    const std::array<Screen, 7> screens{
        Screen{make<frmCorp>, "txtCorp", u"会社情報"_q, "C01_Corp"},
        {make<frmSection>, "txtName", u"部課情報"_q, "C02_Section"},
        {make<frmStaff>, "txtName", u"社員情報"_q, "C03_Staff"},
        {make<frmWorkStyle>, "txtUnit", u"勤務形態設定"_q, "M01_CorpInfo"},
        {make<frmAsign>, "txtPaid", u"社員設定"_q, "C03_Staff"},
        {make<frmAccess>, "txtAccess", u"アクセス権設定"_q, "M08_Access"},
        {make<frmWorkTime>, "txtWeekday", u"平日勤務時間設定"_q, "M03_WeekdayStyle"},
    };
};

TEST_F(SettingsScreens, AskBeforeTheyGoOverChanges) {
    for (const Screen& screen : screens) {
        SCOPED_TRACE(screen.subject.toStdString());
        show(screen);
        const auto canUpdate = [this] {
            for (const auto* const action : form->findChildren<QAction*>())
                if (action->objectName().startsWith(u"mnuUpdate"_q) && action->isEnabled()) return true;
            return false;
        };
        EXPECT_FALSE(canUpdate());
        typeInto(&named<QWidget>(*form, screen.field), u"5"_q);
        EXPECT_TRUE(canUpdate());
        const QString leave = screen.subject + u"は変更されています。変更を破棄しますか？"_q;
        desk.prompts.expect(leave, Answer::No).expect(leave, Answer::Yes);
        QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(form->isVisible());
        QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(form && form->isVisible());
    }
}

// It is told once, and the window can only be closed.
TEST_F(SettingsScreens, DoNothingWithoutTheirTables) {
    for (const Screen& screen : screens) {
        SCOPED_TRACE(screen.subject.toStdString());
        connection.engine(QByteArray("ALTER TABLE ") + screen.table + " RENAME TO Gone");
        desk.prompts.expect(u"エラー番号："_q);
        show(screen);
        EXPECT_FALSE(named<QWidget>(*form, screen.field).isEnabled());
        EXPECT_TRUE(form->close());
        connection.engine(QByteArray("ALTER TABLE Gone RENAME TO ") + screen.table);
    }
}

using FrmCorp = Window<frmCorp>;
using FrmSection = Window<frmSection>;
using FrmStaff = Window<frmStaff>;
using FrmWorkStyle = Window<frmWorkStyle>;

TEST_F(FrmCorp, IsTypedRefusedStoredAndPrinted) {
    open();
    type("txtBranch", QString(26, u'漢'));
    desk.prompts.expect(u"不正な入力です。支社店名は"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(of<QWidget>("txtBranch").hasFocus());
    type("txtBranch", u"大阪'%支店"_q);
    desk.prompts.expect(update, Answer::Cancel).expect(update);
    click("cmdUpdate");
    EXPECT_TRUE(isUpdatable());
    trigger("mnuUpdate");
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_Branch FROM C01_Corp"_q), u"大阪'%支店"_q);
    click("cmdPrint");
    EXPECT_TRUE(desk.prompts.shownTexts().constLast().startsWith(
        u"会社情報登録  (2026/04/15 現在)\n      会社名：見本商事\n    支社店名：大阪'%支店\n    郵便番号：\n"_q));
}

TEST_F(FrmSection, SectionsAreAddedMovedAndRemoved) {
    open();
    auto& list = of<DataList>("dtsSection");
    type("txtCode", u"s9"_q);
    type("txtName", u"研究所"_q);
    desk.prompts.expectFile(u"/srv/Lab/Store.mdb"_q).expect(update);
    click("cmdDB");
    click("cmdUpdate");
    type("txtTel", u"03"_q);
    click("cmdUp");
    click("cmdUp");
    EXPECT_EQ(list.boundText() + text("txtTel"), u"s903"_q) << "a move keeps what was typed";
    desk.prompts.expect(u"部課情報は変更されています。変更を破棄しますか？"_q, Answer::Yes);
    list.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(text("txtCode"), u"S01"_q);
    desk.prompts.expect(u"表示されている部課は使用されているため削除できません。"_q);
    trigger("mnuDelete");
    press(Qt::Key_Up);
    desk.prompts.expect(u"表示されている部課を削除します。"_q).expect(u"新しい部課は削除できません。"_q);
    trigger("mnuDelete");
    trigger("mnuDelete");
    connection.execute(u"DELETE FROM C02_Section WHERE (F_SectionCode = 'NEW')"_q);
    desk.prompts.expect(u"「新しい部課」が削除されています。"_q);
    open();
    choose("dtsSection", 0);
    EXPECT_TRUE(of<QWidget>("picSection").isEnabled()) << "others can be changed without the reserved one";
}

TEST_F(FrmStaff, PeopleAreTypedCheckedAndStored) {
    open();
    choose("dtsStaff", 1);
    type("txtKana", u"ﾔﾏﾀﾞ"_q);
    type("mskBirthday", u"19800115"_q);
    type("mskJoin", u"20100401"_q);
    EXPECT_EQ(of<QLabel>("lblAge").text() + of<QLabel>("lblYear").text(), u"年齢：46歳3月勤続：16年"_q);
    type("mskRetire", u"20201"_q);
    desk.prompts.expect(u"不正な入力です。退社日は"_q);
    press(Qt::Key_Tab);
    of<QLineEdit>("mskRetire").clear();
    of<QRadioButton>("optSex_1").click();
    desk.prompts.expect(update);
    click("cmdUpdate");
    EXPECT_EQ(asked(u"SELECT F_Sex & F_Birth FROM C03_Staff WHERE (F_StaffCode = '1001')"_q),
              u"11980-01-15 00:00:00"_q);
    click("cmdPrint");
    EXPECT_TRUE(desk.prompts.shownTexts().constLast().contains(
        u"      性別：女\n    入社日：2010/04/01 (勤続：16年)\n    退社日：\n      表示：する\n"_q));
    connection.execute(u"DELETE FROM C03_Staff WHERE (F_StaffCode = '1001')"_q);
    type("txtTel", u"03"_q);
    desk.prompts.expect(update).expect(u"エラー番号："_q).expect(u"追加・変更を更新できませんでした。"_q);
    click("cmdUpdate");
    EXPECT_TRUE(isUpdatable());
}

TEST_F(FrmWorkStyle, ControlsFollowEachOther) {
    open();
    click("optMethod_1");
    EXPECT_FALSE(of<QWidget>("optEnter_0").isEnabled());
    click("chkAmFlex");
    for (const bool there : {false, true}) {
        click("chkAmHoliday");
        for (const char* name : {"chkAmFlex", "optAmWork_2", "lblAmTime", "mskAmTime"})
            EXPECT_EQ(of<QWidget>(name).isEnabled(), there) << name;
    }
}

TEST_F(FrmWorkStyle, ABadFieldKeepsTheFocusAndAGoodOneIsStored) {
    open();
    of<QTabWidget>("tabStyle").setCurrentIndex(1);
    type("txtUnit", u"61"_q);
    desk.prompts.expect(u"不正な入力です。1～60の整数を入力して下さい。"_q);
    press(Qt::Key_Tab);
    of("txtUnit").clear();
    of<QTabWidget>("tabStyle").setCurrentIndex(0);
    desk.prompts.expect(u"端数処理単位が入力されていません。"_q);
    click("cmdUpdate");
    EXPECT_EQ(of<QTabWidget>("tabStyle").currentIndex(), 1) << "the page comes forward";
    type("txtUnit", u"5"_q);
    click("chkFlex");
    type("mskTime", u"0745"_q);
    desk.prompts.expect(update);
    click("cmdUpdate");
    EXPECT_EQ(asked(u"SELECT F_FlexStandard & F_RoundUnit FROM M01_CorpInfo"_q), u"07:455"_q);
    QFile::remove(desk.paths.PrintPath);
    ASSERT_TRUE(QDir().mkdir(desk.paths.PrintPath));
    desk.prompts.expect(u"エラー番号："_q);
    click("cmdPrint");
    EXPECT_TRUE(desk.prompts.last().title.endsWith(u"－PrintWorkStyle"_q));
}

} // namespace
} // namespace kurbo::test
