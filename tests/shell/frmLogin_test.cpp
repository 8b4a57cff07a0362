#include "shell/frmLogin.h"

#include "screen/fields/data_combo.h"
#include "screen/windows/open_forms.h"
#include "shell/office.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace kurbo {
namespace {

class FrmLogin : public Office {
  protected:
    void SetUp() override {
        window.load();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename Widget>
    [[nodiscard]] Widget* find(const char* name) const {
        auto* const widget = window.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    [[nodiscard]] QPushButton* button(const char* name) const { return find<QPushButton>(name); }
    [[nodiscard]] QLineEdit* password() const { return find<QLineEdit>("txtPassWord"); }
    [[nodiscard]] DataCombo* section() const { return find<DataCombo>("dcbSection"); }
    [[nodiscard]] DataCombo* staff() const { return find<DataCombo>("dcbStaff"); }
    void choose(const char* menu) const { find<QAction>(menu)->trigger(); }
    void tick(const char* timer) const { QMetaObject::invokeMethod(find<QTimer>(timer), "timeout"); }
    static void close(const char* screen) {
        for (QWidget* const form : openScreens())
            if (form->objectName() == QLatin1String(screen)) form->close();
        settle();
    }
    void idleAway() const {
        for (int minute = 0; minute < 5; ++minute) tick("tmrTimer");
    }

    // Lets what the window system and the window have put off come to its end.
    static void settle() {
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

    void give(const char* word) const {
        password()->setFocus();
        QTest::keyClicks(password(), QString::fromLatin1(word));
        QTest::keyClick(password(), Qt::Key_Return);
    }
    void logInAs(const char* person, const char* word) const {
        section()->setFocus();
        section()->setBoundText(QStringLiteral("S1"));
        staff()->setFocus();
        staff()->setBoundText(QString::fromLatin1(person));
        give(word);
    }
    void logInAsAdmin() const {
        staff()->setFocus();
        staff()->clearEditText();
        QTest::keyClicks(staff(), QStringLiteral("admin"));
        give("ADMIN");
    }

    frmLogin window{client};
};

// A screen that is open beside the main window, and may have changes that somebody keeps.
struct OtherScreen final : QWidget {
    OtherScreen() {
        setObjectName(QStringLiteral("frmKurbo"));
        show();
    }
    void closeEvent(QCloseEvent* event) override { event->setAccepted(!kept); }
    bool kept = false;
};

TEST_F(FrmLogin, ASessionEndsWithItsScreensOrGoesOn) {
    logInAs("P1", "pw1");
    OtherScreen card;
    card.kept = true;
    staff()->setFocus();
    settle();
    EXPECT_TRUE(window.isLoggedIn() && card.isVisible());
    EXPECT_EQ(window.focusWidget(), find<QLineEdit>("txtClock"));
    button("cmdEnter")->click();
    EXPECT_TRUE(window.isLoggedIn());
    card.kept = false;
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    staff()->setFocus();
    settle();
    EXPECT_FALSE(window.isLoggedIn() || card.isVisible() || client.session.access.CanPunch);
    EXPECT_EQ(window.focusWidget(), staff());
    EXPECT_TRUE(staff()->boundText() == u"P1" && password()->text().isEmpty());
    logInAsAdmin();
    password()->setFocus();
    EXPECT_TRUE(staff()->currentText().isEmpty() && !window.isLoggedIn());
    logInAs("P1", "pw1");
    card.show();
    button("cmdLeave")->click();
    EXPECT_FALSE(window.isLoggedIn() || card.isVisible());
}

TEST_F(FrmLogin, AHiddenPersonGetsInByNoWay) {
    execute("UPDATE C03_Staff SET F_Display = 0 WHERE (F_StaffCode = 'P2')");
    execute("UPDATE M02_StaffInfo SET F_Access = 1 WHERE (F_StaffCode = 'P2')");
    const QString refusal = QStringLiteral("不正な入力です。リストから選択して下さい。");
    section()->setBoundText(QStringLiteral("S1"));
    staff()->setFocus();
    QTest::keyClicks(staff(), QStringLiteral("P2"));
    prompts.expect(refusal).expect(refusal);
    find<QMenuBar>("menus")->setFocus();
    give("pw2");
    settle();
    EXPECT_EQ(window.focusWidget(), staff()) << "the way over the menus";
    QTest::keyClick(password(), Qt::Key_Return);
    EXPECT_TRUE(prompts.allShown());
    prompts.expect(refusal);
    QTest::mouseClick(button("cmdLogin"), Qt::LeftButton);
    settle();
    EXPECT_TRUE(prompts.allShown() && !window.isLoggedIn()) << "a quick click";
}

TEST_F(FrmLogin, LoggedOffOnlyTheLoginIsOffered) {
    EXPECT_FALSE(window.isLoggedIn() || button("cmdEnter")->isVisible());
    for (const char* menu : {"mnuDB", "mnuPassword", "mnuDeleteDest"}) EXPECT_FALSE(find<QAction>(menu)->isEnabled());
    for (const char* menu : {"mnuAsign", "mnuMaintainance"}) EXPECT_FALSE(find<QMenu>(menu)->menuAction()->isVisible());
    section()->setBoundText(QStringLiteral("S1"));
    EXPECT_EQ(staff()->count(), 2);
    staff()->setBoundText(QStringLiteral("P1"));
    section()->clearEditText();
    EXPECT_TRUE(staff()->currentText().isEmpty()) << "people of another section";
    EXPECT_FALSE(button("cmdLogin")->isEnabled());
}

TEST_F(FrmLogin, ThePersonsRightsOpenTheCommands) {
    const int shortHeight = window.height();
    logInAs("P1", "PW1");
    ASSERT_TRUE(window.isLoggedIn());
    EXPECT_GT(window.height(), shortHeight);
    for (const char* name : {"cmdEnter", "cmdOut", "cmdIn", "cmdLeave", "cmdKurbo"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    EXPECT_FALSE(button("cmdTotal")->isEnabled());
    EXPECT_TRUE(find<QLabel>("lblTimeDiff")->isVisible());
    EXPECT_TRUE(find<QAction>("mnuDeleteDest")->isEnabled());
    EXPECT_FALSE(find<QMenu>("mnuAsign")->menuAction()->isVisible());
    EXPECT_EQ(window.focusWidget(), button("cmdEnter"));
    choose("mnuDeleteDest");
    EXPECT_TRUE(QApplication::activeModalWidget() && IsFormLoaded(QStringLiteral("frmDeleteDest")));
    close("frmDeleteDest");
    window.HideTimeRecorder();
    EXPECT_EQ(window.height(), shortHeight);
}

TEST_F(FrmLogin, TheAdministratorGetsTheSettingsInTheirOrder) {
    logInAsAdmin();
    ASSERT_TRUE(window.isLoggedIn());
    EXPECT_EQ(client.session.SessionSection, u"ADMIN");
    EXPECT_TRUE(find<QMenu>("mnuAsign")->menuAction()->isVisible());
    EXPECT_TRUE(find<QMenu>("mnuMaintainance")->menuAction()->isVisible());
    EXPECT_FALSE(find<QAction>("mnuDeleteDest")->isEnabled());
    EXPECT_FALSE(button("cmdEnter")->isEnabled());
    prompts.expect(QStringLiteral("会社情報が登録されていません。"));
    choose("mnuSection");
    prompts.expect(QStringLiteral("設定メニューの表示順序"));
    choose("mnuCorp");
    close("frmCorp");
    prompts.expect(QStringLiteral("移動するデータがありません。"));
    choose("mnuMove");
    prompts.expect(QStringLiteral("KurboAdm.hlp"));
    choose("mnuTopic");
}

TEST_F(FrmLogin, ListsFollowWhatASettingsScreenHasChanged) {
    execute("INSERT INTO C01_Corp (F_Corp) VALUES ('見本商事')");
    logInAsAdmin();
    choose("mnuSection");
    execute("UPDATE C02_Section SET F_SectionName = '管理部' WHERE (F_SectionCode = 'S1')");
    execute("INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_DB, F_Order, F_Display) "
            "VALUES ('S2', '工場', '/srv/other.mdb', 2, -1)");
    close("frmSection");
    EXPECT_EQ(staff()->currentText(), u"admin");
    EXPECT_EQ(section()->itemText(0), u8("管理部"));
    EXPECT_EQ(section()->count(), 1) << "the factory lies in another file";
    logInAs("P1", "pw1");
    choose("mnuPassword");
    execute("UPDATE C03_Staff SET F_Display = 0 WHERE (F_StaffCode = 'P1')");
    close("frmPassword");
    EXPECT_EQ(section()->boundText(), u"S1");
    EXPECT_EQ(staff()->currentText(), QString()) << "no longer in the list";
}

TEST_F(FrmLogin, AComboRefusesWhatIsNotInItsList) {
    section()->setFocus();
    QTest::keyClicks(section(), QStringLiteral("zzz"));
    prompts.expect(QStringLiteral("不正な入力です。リストから選択して下さい。"));
    QTest::keyClick(section(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_TRUE(prompts.allShown());
    EXPECT_EQ(window.focusWidget(), section());
    section()->clearEditText();
    QTest::keyClick(section(), Qt::Key_Tab);
    QTest::keyClicks(staff(), QStringLiteral("Admin"));
    QTest::keyClick(staff(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.focusWidget(), password());
}

TEST_F(FrmLogin, APunchByKeyboardWritesTheRowAndEndsTheSession) {
    logInAs("P1", "pw1");
    QKeyEvent heldTooLong(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window.focusWidget(), &heldTooLong);
    ASSERT_TRUE(window.isLoggedIn()) << "the password's Enter key, held down";
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(stored("SELECT F_Enter FROM T02_Kurbo WHERE (F_User = 'P1');"), u"2026/11/20 08:54:12");
    EXPECT_FALSE(window.isLoggedIn());
    EXPECT_TRUE(password()->text().isEmpty());
    EXPECT_EQ(window.focusWidget(), staff());
    EXPECT_EQ(staff()->currentText(), u"佐藤");
}

TEST_F(FrmLogin, ARefusedPunchEndsTheSessionAndAFailedOneDoesNot) {
    execute("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter) "
            "VALUES (1, '20261120', 'P1', #2026/11/20 08:00:00#)");
    logInAs("P1", "pw1");
    prompts.expect(QStringLiteral("既に出社打刻済です。打刻できません。"));
    button("cmdEnter")->click();
    EXPECT_FALSE(window.isLoggedIn());
    clock.set(*parseSlashMoment(u"2026/11/21 08:00:00"));
    logInAs("P1", "pw1");
    prompts.expect(QStringLiteral("カレンダーが作成されていません。"));
    button("cmdEnter")->click();
    EXPECT_TRUE(window.isLoggedIn());
}

TEST_F(FrmLogin, FiveIdleMinutesLetTheDatabaseGoButNotTheSession) {
    logInAs("P1", "pw1");
    idleAway();
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("store.ldb"))));
    EXPECT_TRUE(window.isLoggedIn());
    execute("UPDATE C03_Staff SET F_StaffName = '佐藤花' WHERE (F_StaffCode = 'P1')");
    button("cmdEnter")->click();
    EXPECT_EQ(stored("SELECT F_User FROM T02_Kurbo;"), u"P1");
    EXPECT_TRUE(client.HomeConnection.isOpen());
    EXPECT_EQ(staff()->currentText(), u"佐藤花") << "the lists are read anew, the choice stays";
}

TEST_F(FrmLogin, IdleReleaseDoesNotMindATextThatIsRead) {
    QFile(paths.helpPath).open(QIODevice::WriteOnly);
    choose("mnuTopic");
    idleAway();
    EXPECT_TRUE(IsFormLoaded(QStringLiteral("frmHelp")) && !client.HomeConnection.isOpen());
    QTimer::singleShot(0, &window, [this] {
        EXPECT_TRUE(client.HomeConnection.isOpen() && find<QTimer>("tmrTimer")->isActive());
        idleAway();
        EXPECT_FALSE(client.HomeConnection.isOpen());
        QApplication::activeModalWidget()->close();
    });
    choose("mnuVersion");
}

TEST_F(FrmLogin, IdleReleaseAsksNothingAndWaitsWhileAScreenIsOpen) {
    OtherScreen card;
    idleAway();
    EXPECT_TRUE(client.HomeConnection.isOpen());
    card.close();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    section()->setFocus();
    QTest::keyClicks(section(), QStringLiteral("zz"));
    settle();
    idleAway();
    QCoreApplication::processEvents();
    EXPECT_FALSE(client.HomeConnection.isOpen());
}

TEST_F(FrmLogin, TheThirdWrongPasswordInARowEndsTheClient) {
    const QSignalSpy ended(&window, &frmLogin::ended);
    prompts.expect(QStringLiteral("正しいパスワードを")).expect(QStringLiteral("正しいパスワードを"));
    logInAs("P1", "no");
    EXPECT_TRUE(password()->text().isEmpty());
    EXPECT_EQ(window.focusWidget(), password());
    give("no");
    OtherScreen card;
    prompts.expect(QStringLiteral("強制終了します。")).expect(QStringLiteral("他のメニューが開いているので"));
    give("no");
    prompts.expect(QStringLiteral("他のメニューが開いているので"));
    give("pw1");
    EXPECT_TRUE(window.isVisible() && !window.isLoggedIn());
    card.close();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    settle();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(QFile::exists(paths.BackupPath));
}

TEST_F(FrmLogin, TheClockNamesTheDayAndChangesAtMidnight) {
    auto* const text = find<QLineEdit>("txtClock");
    const auto colour = [text] { return text->palette().color(QPalette::Text); };
    tick("tmrClock");
    EXPECT_EQ(text->text(), u"2026年11月20日(金)  8:55:12");
    EXPECT_EQ(colour(), QColor(Qt::black));
    EXPECT_EQ(find<QLabel>("lblHoliday")->text(), u"創立記念日");
    prompts.expect(QStringLiteral("カレンダー"));
    clock.set(*parseSlashMoment(u"2026/11/21 00:00:00"));
    tick("tmrClock");
    tick("tmrClock");
    EXPECT_EQ(colour(), QColor(0, 0, 255));
    EXPECT_EQ(find<QLabel>("lblHoliday")->text(), u"創立記念日");
}

TEST_F(Office, AWindowThatCouldNotLoadOnlyCloses) {
    QFile::remove(client.DbPath);
    frmLogin window(client);
    prompts.expect(QStringLiteral("エラー番号："));
    window.load();
    window.show();
    window.greet();
    window.findChild<DataCombo*>(QStringLiteral("dcbSection"))->setFocus();
    QCoreApplication::processEvents();
    prompts.expect(QStringLiteral("が見つかりません。"));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Office, MoreThanAYearOfRowsIsTold) {
    execute("INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES ('20251119', #2025/11/19#)");
    execute("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) VALUES (1, '20251119', 'P1')");
    execute("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) VALUES (2, '20261120', 'P1')");
    frmLogin window(client);
    window.load();
    prompts.expect(QStringLiteral("レコード数が１年分を超えています。"));
    window.greet();
}

} // namespace
} // namespace kurbo
