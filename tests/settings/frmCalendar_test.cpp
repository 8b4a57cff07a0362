#include "settings/calendar/frmCalendar.h"

#include "settings/calendar/frmHoliday.h"
#include "support/window.h"

namespace kurbo::test {
namespace {

const QString discard = u"カレンダーは変更されています。変更を破棄しますか？"_q;
const QString update = u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q;

// The calendar of 2026 and its rules.
class FrmCalendar : public Window<frmCalendar> {
  protected:
    void openRules() {
        trigger("mnuHoliday");
        rules = form->findChild<frmHoliday*>();
        ASSERT_TRUE(rules);
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == rules; }));
    }
    void clickRules(const char* button) const { named<QPushButton>(*rules, button).click(); }
    [[nodiscard]] QString file() const { return named<QLabel>(*rules, "lblHoliday").text(); }
    [[nodiscard]] Grid& days() const { return of<Grid>("vfgCalendar"); }
    // By the list: F2, down so often, Enter.
    static void choose(Grid& grid, int row, int column, int entry) {
        grid.setFocus();
        grid.Select(row, column);
        press(Qt::Key_F2);
        for (int i = 0; i < entry; ++i) press(Qt::Key_Down);
        press(Qt::Key_Return);
    }
    [[nodiscard]] QString stored(const QString& id) {
        return asked(u"SELECT F_Holiday & ' ' & F_Type FROM T01_Calendar WHERE F_DateID = '%1'"_q.arg(id));
    }

    QPointer<frmHoliday> rules;
};

} // namespace

TEST_F(FrmCalendar, DaysAreTypedAndStored) {
    open();
    EXPECT_EQ(form->windowTitle(), u"Kurbo－カレンダー設定"_q);
    EXPECT_EQ(days().grid()->CellText(119, 1) + days().grid()->CellText(119, 2), u"2026/04/29(水)昭和の日"_q);
    EXPECT_EQ(form->statusBar()->findChild<QLabel*>()->text(), u"日付の名称を入力します(例：夏季休暇)"_q);
    typeCell(days(), 2, 2, u"Rest"_q);
    EXPECT_TRUE(isUpdatable());
    choose(days(), 2, 3, 2);
    EXPECT_EQ(days().grid()->TextMatrix(2, 3), u"1"_q);
    EXPECT_EQ(days().grid()->CellText(2, 3), u"午前"_q);
    desk.prompts.expect(u"半角30文字"_q);
    typeCell(days(), 3, 2, u"x"_q.repeated(31));
    EXPECT_TRUE(days().isEditing());
    press(Qt::Key_Escape);
    desk.prompts.expect(update, Answer::Cancel).expect(update);
    click("cmdUpdate");
    EXPECT_EQ(stored(u"20260102"_q), u" "_q);
    trigger("mnuUpdate");
    EXPECT_EQ(stored(u"20260102"_q), u"Rest 1"_q);
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(days().Row(), 3) << "the cursor stays where it was";
    typeCell(days(), 4, 2, u"Rest"_q);
    desk.prompts.expect(discard, Answer::No).expect(discard, Answer::Yes);
    desk.prompts.expect(u"2027年のカレンダーは作成されていません。"_q);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form && form->isVisible());
    of("txtYear").setFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(text("txtYear") + days().grid()->CellText(365, 1), u"20272027/12/31(金)"_q);
    press(Qt::Key_Down);
    EXPECT_EQ(text("txtYear"), u"2026"_q);
    EXPECT_FALSE(isUpdatable());
    press(Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(FrmCalendar, RulesAreCarriedIntoTheCalendar) {
    QFile::copy(QStringLiteral(KURBO_DATA "/Holiday.txt"), desk.paths.HolidayPath);
    open();
    openRules();
    EXPECT_EQ(rules->windowTitle(), u"Kurbo－休日設定"_q);
    Grid& grid = named<Grid>(*rules, "vfgHoliday");
    choose(grid, 1, 1, 1);
    choose(grid, 1, 2, 1);
    EXPECT_EQ(grid.grid()->TextMatrix(1, 1) + grid.grid()->TextMatrix(1, 2), u"01"_q);
    choose(grid, 2, 1, 7);
    desk.prompts.expect(u"2行目で開始日付が正しく入力されていません。"_q);
    clickRules("cmdWrite");
    typeCell(grid, 2, 3, u"0812"_q);
    desk.prompts.expect(u"不正な入力です。日付をmm:dd形式で入力して下さい。"_q);
    typeCell(grid, 2, 4, u"0832"_q);
    press(Qt::Key_Escape);
    typeCell(grid, 2, 4, u"0814"_q);
    typeCell(grid, 2, 5, u"Obon"_q);
    choose(grid, 2, 6, 1);
    EXPECT_EQ(file(), u"祝日ファイル：2027年"_q);
    desk.prompts.expect(u"2026年の祝日ファイルを作成して"_q, Answer::Yes);
    clickRules("cmdHoliday");
    EXPECT_EQ(grid.grid()->CellText(3, 1) + grid.grid()->CellText(3, 5), u"期間元日"_q);
    EXPECT_EQ(file(), u"祝日ファイル：2026年"_q);
    const QString write = u"指定された休日をカレンダーに設定します。\r\n\r\nよろしいですか？"_q;
    desk.prompts.expect(write, Answer::Cancel).expect(write);
    clickRules("cmdWrite");
    EXPECT_FALSE(isUpdatable());
    named<QAction>(*rules, "mnuWrite").trigger();
    EXPECT_FALSE(rules && rules->isVisible());
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(update);
    click("cmdUpdate");
    EXPECT_EQ(stored(u"20260813"_q), u"Obon 0"_q);
    EXPECT_EQ(stored(u"20260104"_q), u" "_q) << "every Sunday, without a name";
    EXPECT_EQ(stored(u"20260112"_q), u"成人の日 0"_q) << "the second Monday of the year that is shown";
}

TEST_F(FrmCalendar, AWrongWorkStyleIsTold) {
    open();
    connection.execute(u"DELETE FROM M01_CorpInfo"_q);
    desk.prompts.expect(u"勤務形態設定に不備があります。"_q);
    form->load();
    EXPECT_FALSE(days().isEnabled());
}

} // namespace kurbo::test
