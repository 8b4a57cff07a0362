#include "card/card_cells.h"
#include "card/card_grid.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/data_list.h"
#include "settings/calendar/frmHoliday.h"
#include "settings/people/access_sheet.h"
#include "shell/login/frmLogin.h"
#include "support/kurboctl.h"
#include "support/window.h"

#include <QCheckBox>
#include <QTabWidget>

namespace kurbo::test {
namespace {

// A site that begins with an empty file and is set up through the windows alone.
class NewSite : public ::testing::Test {
  protected:
    using Texts = QList<std::pair<const char*, QString>>;

    void SetUp() override {
        client.DbPath = desk.file(u"site.mdb"_q);
        ASSERT_EQ(kurboctl({u"new"_q, client.DbPath}).exit, 0);
        QFile::copy(QStringLiteral(KURBO_DATA "/Holiday.txt"), desk.paths.HolidayPath);
        window.load();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        desk.prompts.expect(u"2026 年のカレンダーが作成されていません。"_q).expect(u"氏名に ADMIN、"_q);
        window.greet();
    }
    // The screen that a menu entry opens; none where a message refuses it.
    QWidget* open(const char* menu, Screen screen, const QString& refusal = {}) {
        if (!refusal.isEmpty()) desk.prompts.expect(refusal);
        named<QAction>(window, menu).trigger();
        QCoreApplication::processEvents();
        QWidget* const form = window.screens().window(screen);
        EXPECT_EQ(form == nullptr, !refusal.isEmpty()) << menu;
        return form;
    }
    static void press(const QWidget* form, const char* button) { named<QPushButton>(*form, button).click(); }
    static void fill(const QWidget* form, const Texts& texts) {
        for (const auto& [name, text] : texts) typeInto(&named<QWidget>(*form, name), text);
    }
    void update(const QWidget* form, const char* button = "cmdUpdate") {
        desk.prompts.expect(u"追加・変更を更新します。"_q);
        press(form, button);
        EXPECT_FALSE(named<QWidget>(*form, button).isEnabled()) << button;
    }
    static void tick(const QWidget* form, std::initializer_list<const char*> boxes) {
        for (const char* box : boxes) named<QCheckBox>(*form, box).setChecked(true);
    }
    static void chooseNew(const QWidget* form, const char* list) {
        named<DataList>(*form, list).setCurrentRow(0);
        QCoreApplication::processEvents();
    }
    static void close(QWidget* form) {
        EXPECT_TRUE(form->close());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    void logIn(const QString& section, const QString& staff, const QString& password) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        fill(&window, {{"dcbSection", section}, {"dcbStaff", staff}, {"txtPassWord", password}});
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        ASSERT_TRUE(window.isLoggedIn());
    }

    void enterCompany() {
        desk.prompts.expect(u"設定メニューの表示順序に従い、会社情報登録から順次設定を行って下さい。"_q);
        QWidget* const form = open("mnuCorp", Screen::Corp);
        fill(form, {{"txtCorp", u"新設商事"_q}, {"txtTel", u"03-1234-5678"_q}});
        update(form);
        close(form);
    }

    void enterSections() {
        QWidget* const form = open("mnuSection", Screen::Section);
        for (const auto& [code, name] : {std::pair{u"S1"_q, u"総務部"_q}, {u"S2"_q, u"製造部"_q}}) {
            chooseNew(form, "dtsSection");
            fill(form, {{"txtName", name}, {"txtCode", code}, {"cboDB", u"カレントデータベース"_q}});
            tick(form, {"chkDisplay"});
            update(form);
        }
        close(form);
    }

    void enterPeople() {
        QWidget* const form = open("mnuStaff", Screen::Staff);
        for (const auto& [code, name, section] : {std::tuple{u"11"_q, u"青木"_q, u"総務部"_q},
                                                  {u"12"_q, u"石田"_q, u"総務部"_q},
                                                  {u"21"_q, u"上野"_q, u"製造部"_q}}) {
            chooseNew(form, "dtsStaff");
            fill(form, {{"txtName", name}, {"txtKana", u"ｶﾅ"_q}, {"txtCode", code}, {"dcbSection", section}});
            tick(form, {"chkDisplay"});
            update(form);
        }
        close(form);
    }

    void setWorkStyle() {
        QWidget* const form = open("mnuWorkStyle", Screen::WorkStyle);
        typeInto(&named<QWidget>(*form, "txtUnit"), u"15"_q);
        update(form);
        close(form);
    }

    void setWorkTimes() {
        QWidget* const form = open("mnuWorkTime", Screen::WorkTime);
        auto* const tab = &named<QTabWidget>(*form, "tabTime");
        auto& weekday = named<Grid>(*form, "vfgWeekday");
        typeInto(&named<QWidget>(*form, "txtWeekday"), u"日勤"_q);
        const QStringList times{u"0900"_q, u"1200"_q, u"1300"_q, u"1800"_q};
        for (int slot = 0; slot < times.size(); ++slot) typeCell(weekday, 2, slot + 1, times[slot]);
        typeCell(weekday, 5, 1, u"1800"_q);
        typeCell(weekday, 5, 2, u"2200"_q);
        update(form, "cmdUpdateWeekday");
        tab->setCurrentIndex(1);
        typeInto(&named<QWidget>(*form, "txtHoliday"), u"休日"_q);
        typeCell(named<Grid>(*form, "vfgHoliday"), 2, 1, u"0500"_q);
        typeCell(named<Grid>(*form, "vfgHoliday"), 2, 2, u"2200"_q);
        update(form, "cmdUpdateHoliday");
        tab->setCurrentIndex(4);
        typeInto(&named<QWidget>(*form, "txtAdjust"), u"上限45時間"_q);
        typeCell(named<Grid>(*form, "vfgAdjust"), 2, 1, u"45:00"_q);
        update(form, "cmdUpdateAdjust");
        close(form);
    }

    void setRights() {
        QWidget* const form = open("mnuAccess", Screen::Access);
        auto& grid = named<Grid>(*form, "vfgAccess");
        typeInto(&named<QWidget>(*form, "txtAccess"), u"一般"_q);
        typeCell(grid, firstAccessRow, static_cast<int>(AccessColumn::Section), u"所属部課"_q);
        grid.Select(firstAccessRow, static_cast<int>(AccessColumn::FirstRight));
        QTest::keyClick(&grid, Qt::Key_Space);
        update(form);
        close(form);
    }

    void setPeople() {
        QWidget* const form = open("mnuUser", Screen::Asign);

        const auto set = [&](int row) {
            named<DataList>(*form, "dtsStaff").setCurrentRow(row);
            QCoreApplication::processEvents();
            named<QTabWidget>(*form, "tabStaff").setCurrentIndex(0);
            fill(form, {{"txtPassword", u"pass1"_q}, {"txtCloseDay", u"31"_q}, {"txtPaid", u"10"_q}});
            named<QTabWidget>(*form, "tabStaff").setCurrentIndex(1);
            fill(form, {{"dcbWeekday", u"日勤"_q},
                        {"dcbHoliday", u"休日"_q},
                        {"dcbAdjust", u"上限45時間"_q},
                        {"dcbAccess", u"一般"_q}});
            update(form);
        };
        set(0);
        set(1);
        typeInto(&named<QWidget>(*form, "dcbSection"), u"製造部"_q);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        set(0);
        close(form);
    }

    void setCalendar() {
        QWidget* const calendar = open("mnuCalendar", Screen::Calendar);
        press(calendar, "cmdHoliday");
        QCoreApplication::processEvents();
        QWidget* const form = onScreen<frmHoliday>();
        ASSERT_TRUE(form);
        auto& rules = named<Grid>(*form, "vfgHoliday");
        typeCell(rules, 1, 1, u"毎週"_q);
        typeCell(rules, 1, 2, u"日曜日"_q);
        typeCell(rules, 1, 5, u"定休日"_q);
        typeCell(rules, 1, 6, u"全日"_q);
        desk.prompts.expect(u"2026年の祝日ファイルを作成して"_q, Answer::Yes);
        press(form, "cmdHoliday");
        desk.prompts.expect(u"指定された休日をカレンダーに設定します。"_q);
        press(form, "cmdWrite");
        update(calendar);
        close(calendar);
    }

    Desk desk;
    Client client{desk.context};
    frmLogin window{client};
};

TEST_F(NewSite, IsSetUpThroughTheWindowsInTheirOrder) {
    logIn({}, u"admin"_q, u"ADMIN"_q);
    open("mnuStaff", Screen::Staff, u"部課情報が登録されていません。"_q);
    enterCompany();
    enterSections();
    open("mnuWorkStyle", Screen::WorkStyle, u"社員情報が登録されていません。"_q);
    enterPeople();
    setWorkStyle();
    setWorkTimes();
    setRights();
    setPeople();
    setCalendar();
    ASSERT_FALSE(HasFatalFailure());

    // Somebody works until the evening.
    logIn(u"総務部"_q, u"石田"_q, u"pass1"_q);
    press(&window, "cmdEnter");
    desk.clock.set(at(desk.clock.today(), 19, 40));
    logIn(u"総務部"_q, u"石田"_q, u"pass1"_q);
    press(&window, "cmdLeave");
    EXPECT_FALSE(window.isLoggedIn());
    logIn(u"総務部"_q, u"石田"_q, u"pass1"_q);
    press(&window, "cmdKurbo");
    QWidget* const card = window.screens().window(Screen::Kurbo);
    ASSERT_TRUE(card);
    const GridModel& cells = *named<Grid>(*card, "vfgKurbo").grid();
    QStringList today;
    for (const CardColumn column : {CardColumn::Enter, CardColumn::Leave, CardColumn::Over})
        today.append(cardText(cells, firstCardDay + 14, column));
    EXPECT_EQ(today.join(u' '), u"09:00 19:40 1:30"_q);
    // Sunday, Wednesday the 15th and the 29th, a public holiday.
    for (const auto& [day, type] : {std::pair{5, u"0"_q}, {15, QString()}, {29, u"0"_q}})
        EXPECT_EQ(cells.TextMatrix(firstCardDay + day - 1, static_cast<int>(CardColumn::Holiday)), type) << day;
}

} // namespace
} // namespace kurbo::test
