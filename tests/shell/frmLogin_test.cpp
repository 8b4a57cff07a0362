#include "shell/login/frmLogin.h"

#include "card/card_cells.h"
#include "card/card_grid.h"
#include "screen/fields/data_combo.h"
#include "store/file/database_file.h"
#include "support/window.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

namespace kurbo::test {
namespace {

// On Friday, 20 November 2026, which has a name.
class FrmLogin : public Window<frmLogin> {
  protected:
    FrmLogin() {
        connection.execute(u"UPDATE T01_Calendar SET F_Holiday = '創立記念日' WHERE (F_DateID = '20261120')"_q);
        desk.clock.set(*parseSlashMoment(u"2026/11/20 08:55:12"));
        show();
    }
    [[nodiscard]] QPushButton* button(const char* name) const { return &of<QPushButton>(name); }
    [[nodiscard]] QLineEdit* password() const { return &of("txtPassWord"); }
    [[nodiscard]] DataCombo* section() const { return &of<DataCombo>("dcbSection"); }
    [[nodiscard]] DataCombo* staff() const { return &of<DataCombo>("dcbStaff"); }
    void tick(const char* timer) const { QMetaObject::invokeMethod(&of<QTimer>(timer), "timeout"); }
    [[nodiscard]] const Screens& screens() const { return form->screens(); }
    [[nodiscard]] QWidget* screen(Screen screen) const { return screens().window(screen); }
    void close(Screen screen) const {
        EXPECT_TRUE(this->screen(screen)->close());
        settle();
    }
    // The own card; a change in it is asked about before the card closes.
    void openCard(bool changed) const {
        click("cmdKurbo");
        if (changed)
            named<Grid>(*screen(Screen::Kurbo), "vfgKurbo")
                .grid()
                ->edit(firstCardDay, static_cast<int>(CardColumn::Plan), u"x"_q);
    }
    void idleAway() const {
        for (int minute = 0; minute < 5; ++minute) tick("tmrTimer");
    }

    // Lets what the window system and the window have put off come to its end.
    static void settle() {
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

    void give(const QString& word) const {
        typeInto(password(), word);
        QTest::keyClick(password(), Qt::Key_Return);
    }
    void logInAs(const QString& person, const QString& word = u"kurbo1"_q) const {
        section()->setFocus();
        section()->setBoundText(u"S01"_q);
        staff()->setFocus();
        staff()->setBoundText(person);
        give(word);
    }
    void logInAsAdmin() const {
        typeInto(staff(), u"admin"_q);
        give(u"ADMIN"_q);
    }
    void comeBack() const {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
};

TEST_F(FrmLogin, ASessionEndsWithItsScreensOrGoesOn) {
    const QString discard = u"変更を破棄しますか？"_q;
    logInAs(u"1001"_q);
    openCard(true);
    comeBack();
    desk.prompts.expect(discard, Answer::No).expect(discard, Answer::No);
    staff()->setFocus();
    settle();
    EXPECT_TRUE(form->isLoggedIn() && screen(Screen::Kurbo));
    EXPECT_EQ(form->focusWidget(), &of("txtClock"));
    click("cmdEnter");
    EXPECT_TRUE(form->isLoggedIn() && desk.prompts.allShown());
    comeBack();
    desk.prompts.expect(discard, Answer::Yes);
    staff()->setFocus();
    settle();
    EXPECT_FALSE(form->isLoggedIn() || screen(Screen::Kurbo) || client.session.access.CanPunch);
    EXPECT_EQ(form->focusWidget(), staff());
    EXPECT_TRUE(staff()->boundText() == u"1001" && password()->text().isEmpty());
    logInAs(u"1001"_q);
    openCard(false);
    click("cmdLeave");
    EXPECT_FALSE(form->isLoggedIn() || screen(Screen::Kurbo));
}

TEST_F(FrmLogin, AHiddenPersonGetsInByNoWay) {
    connection.execute(u"UPDATE C03_Staff SET F_Display = 0 WHERE (F_StaffCode = '1002')"_q);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 1 WHERE (F_StaffCode = '1002')"_q);
    const QString refusal = u"不正な入力です。リストから選択して下さい。"_q;
    section()->setBoundText(u"S01"_q);
    staff()->setFocus();
    QTest::keyClicks(staff(), u"1002"_q);
    desk.prompts.expect(refusal).expect(refusal);
    of<QMenuBar>("menus").setFocus();
    give(u"kurbo1"_q);
    settle();
    EXPECT_EQ(form->focusWidget(), staff()) << "the way over the menus";
    QTest::keyClick(password(), Qt::Key_Return);
    EXPECT_TRUE(desk.prompts.allShown());
    desk.prompts.expect(refusal);
    QTest::mouseClick(button("cmdLogin"), Qt::LeftButton);
    settle();
    EXPECT_TRUE(desk.prompts.allShown() && !form->isLoggedIn()) << "a quick click";
}

TEST_F(FrmLogin, LoggedOffOnlyTheLoginIsOffered) {
    EXPECT_FALSE(form->isLoggedIn() || button("cmdEnter")->isVisible());
    for (const char* menu : {"mnuDB", "mnuPassword", "mnuDeleteDest"}) EXPECT_FALSE(of<QAction>(menu).isEnabled());
    for (const char* menu : {"mnuAsign", "mnuMaintainance"}) EXPECT_FALSE(of<QMenu>(menu).menuAction()->isVisible());
    section()->setBoundText(u"S01"_q);
    staff()->setBoundText(u"1001"_q);
    section()->clearEditText();
    EXPECT_TRUE(staff()->currentText().isEmpty()) << "people of another section";
    EXPECT_FALSE(button("cmdLogin")->isEnabled());
}

TEST_F(FrmLogin, ThePersonsRightsOpenTheCommands) {
    const int shortHeight = form->height();
    logInAs(u"1001"_q, u"KURBO1"_q);
    EXPECT_GT(form->height(), shortHeight);
    for (const char* name : {"cmdEnter", "cmdOut", "cmdIn", "cmdLeave", "cmdKurbo"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    EXPECT_FALSE(button("cmdTotal")->isEnabled() || of<QMenu>("mnuAsign").menuAction()->isVisible());
    EXPECT_EQ(form->focusWidget(), button("cmdEnter"));
    trigger("mnuDeleteDest");
    EXPECT_TRUE(screen(Screen::DeleteDest));
    close(Screen::DeleteDest);
    form->HideTimeRecorder();
    EXPECT_EQ(form->height(), shortHeight);
    logInAsAdmin();
    EXPECT_EQ(client.session.SessionSection, u"ADMIN");
    EXPECT_TRUE(of<QMenu>("mnuAsign").menuAction()->isVisible());
    EXPECT_FALSE(of<QAction>("mnuDeleteDest").isEnabled() || button("cmdEnter")->isEnabled());
    connection.execute(u"DELETE * FROM T01_Calendar WHERE (F_DateID < '20261120')"_q);
    desk.prompts.expect(u"移動するデータがありません。"_q).expect(u"KurboAdm.hlp"_q);
    trigger("mnuMove");
    trigger("mnuTopic");
}

TEST_F(FrmLogin, ListsFollowWhatASettingsScreenHasChanged) {
    logInAsAdmin();
    trigger("mnuSection");
    connection.execute(u"UPDATE C02_Section SET F_SectionName = '管理部' WHERE (F_SectionCode = 'S01')"_q);
    insert("C02_Section", "SectionCode, SectionName, DB, Order, Display", u"'S02', '工場', '/srv/other.mdb', 2, -1"_q);
    close(Screen::Section);
    EXPECT_EQ(staff()->currentText(), u"admin");
    EXPECT_EQ(section()->itemText(0), u"管理部"_q);
    EXPECT_EQ(section()->count(), 1) << "the factory lies in another file";
}

TEST_F(FrmLogin, AnotherDatabaseEndsTheSessionAndShowsItsLists) {
    const QString other = desk.file(u"other.mdb"_q);
    makeSampleCompany(other);
    connection.open(other, databasePassword());
    connection.execute(u"UPDATE C02_Section SET F_SectionName = '工場' WHERE (F_SectionCode = 'S01')"_q);
    logInAs(u"1001"_q);
    openCard(false);
    trigger("mnuDB");
    EXPECT_FALSE(screen(Screen::Kurbo)) << "its next update would go to the other file";
    ASSERT_TRUE(screen(Screen::Parm));
    idleAway();
    EXPECT_TRUE(client.HomeConnection.isOpen());
    named<QPushButton>(*screen(Screen::Parm), "cmdCancel").click();
    EXPECT_TRUE(form->isLoggedIn() && !screens().isAnyOpen());
    trigger("mnuDB");
    named<QLineEdit>(*screen(Screen::Parm), "txtDB").setText(other);
    close(Screen::Parm);
    EXPECT_FALSE(form->isLoggedIn() || screens().isAnyOpen());
    EXPECT_TRUE(section()->itemText(0) == u"工場" && section()->currentText().isEmpty());
}

TEST_F(FrmLogin, APunchByKeyboardWritesTheRowAndEndsTheSession) {
    logInAs(u"1001"_q);
    QKeyEvent heldTooLong(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(form->focusWidget(), &heldTooLong);
    ASSERT_TRUE(form->isLoggedIn()) << "the password's Enter key, held down";
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(asked(u"SELECT F_Enter FROM T02_Kurbo WHERE (F_User = '1001');"_q), u"2026/11/20 08:54:42");
    EXPECT_TRUE(!form->isLoggedIn() && password()->text().isEmpty() && form->focusWidget() == staff());
    EXPECT_EQ(staff()->currentText(), u"山田太郎");
}

TEST_F(FrmLogin, ARefusedPunchEndsTheSessionAndAFailedOneDoesNot) {
    addCard(1, *makeDay(2026, 11, 20), u"08:00"_q, {});
    logInAs(u"1001"_q);
    desk.prompts.expect(u"既に出社打刻済です。打刻できません。"_q);
    click("cmdEnter");
    EXPECT_FALSE(form->isLoggedIn());
    desk.clock.set(*parseSlashMoment(u"2027/01/02 08:00:00"));
    logInAs(u"1001"_q);
    desk.prompts.expect(u"カレンダーが作成されていません。"_q);
    click("cmdEnter");
    EXPECT_TRUE(form->isLoggedIn());
}

TEST_F(FrmLogin, FiveIdleMinutesLetTheDatabaseGoButNotTheSession) {
    logInAs(u"1001"_q);
    connection.close();
    idleAway();
    EXPECT_FALSE(QFile::exists(desk.file(u"store.ldb"_q)));
    EXPECT_TRUE(form->isLoggedIn());
    connection.open(path, databasePassword());
    connection.execute(u"UPDATE C03_Staff SET F_StaffName = '山田花' WHERE (F_StaffCode = '1001')"_q);
    click("cmdEnter");
    EXPECT_EQ(asked(u"SELECT F_User FROM T02_Kurbo;"_q), u"1001");
    EXPECT_TRUE(client.HomeConnection.isOpen());
    EXPECT_EQ(staff()->currentText(), u"山田花") << "the lists are read anew, the choice stays";
}

TEST_F(FrmLogin, IdleReleaseAsksNothingAndWaitsWhileAScreenIsOpen) {
    logInAs(u"1001"_q);
    openCard(false);
    idleAway();
    EXPECT_TRUE(client.HomeConnection.isOpen());
    close(Screen::Kurbo);
    comeBack();
    section()->setFocus();
    QTest::keyClicks(section(), u"zz"_q);
    settle();
    idleAway();
    QCoreApplication::processEvents();
    EXPECT_FALSE(client.HomeConnection.isOpen());
}

TEST_F(FrmLogin, TheThirdWrongPasswordInARowEndsTheClient) {
    connection.close();
    logInAs(u"1001"_q);
    openCard(false);
    form->HideTimeRecorder();
    comeBack();
    const QSignalSpy ended(form, &frmLogin::ended);
    desk.prompts.expect(u"正しいパスワードを"_q).expect(u"正しいパスワードを"_q);
    logInAs(u"1001"_q, u"no"_q);
    EXPECT_TRUE(password()->text().isEmpty());
    EXPECT_EQ(form->focusWidget(), password());
    give(u"no"_q);
    desk.prompts.expect(u"強制終了します。"_q).expect(u"他のメニューが開いているので"_q);
    give(u"no"_q);
    desk.prompts.expect(u"他のメニューが開いているので"_q);
    give(u"kurbo1"_q);
    EXPECT_TRUE(form->isVisible() && !form->isLoggedIn());
    close(Screen::Kurbo);
    form->activateWindow();
    settle();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(QFile::exists(desk.paths.BackupPath));
}

TEST_F(FrmLogin, TheClockNamesTheDayAndChangesAtMidnight) {
    const auto* const text = &of("txtClock");
    const auto colour = [text] { return text->palette().color(QPalette::Text); };
    tick("tmrClock");
    EXPECT_EQ(text->text(), u"2026年11月20日(金)  8:55:12");
    EXPECT_EQ(of<QLabel>("lblHoliday").text(), u"創立記念日");
    desk.prompts.expect(u"カレンダー"_q);
    desk.clock.set(*parseSlashMoment(u"2027/01/02 00:00:00"));
    tick("tmrClock");
    tick("tmrClock");
    EXPECT_EQ(colour(), QColor(0, 0, 255));
}

} // namespace
} // namespace kurbo::test
