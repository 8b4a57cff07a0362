#include "settings/calendar/frmCalendar.h"

#include "settings/calendar/frmHoliday.h"
#include "support/window.h"

namespace kurbo::test {
namespace {

const QString discard = u"カレンダーは変更されています。変更を破棄しますか？"_q;
const QString update = u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q;

class FrmCalendar : public Window<frmCalendar> {
  protected:
    [[nodiscard]] Grid& days() const { return of<Grid>("vfgCalendar"); }
    [[nodiscard]] QString stored(const QString& id) {
        return asked(u"SELECT F_Holiday & ' ' & F_Type FROM T01_Calendar WHERE F_DateID = '%1'"_q.arg(id));
    }
};

} // namespace

TEST_F(FrmCalendar, DaysAreTypedAndStored) {
    open();
    typeCell(days(), 2, 2, u"Rest"_q);
    EXPECT_TRUE(isUpdatable());
    typeCell(days(), 2, 3, u"午前"_q);
    desk.prompts.expect(update);
    trigger("mnuUpdate");
    EXPECT_EQ(stored(u"20260102"_q), u"Rest 1"_q);
    EXPECT_FALSE(isUpdatable());
    typeCell(days(), 4, 2, u"Rest"_q);
    desk.prompts.expect(discard, Answer::No).expect(discard, Answer::Yes);
    desk.prompts.expect(u"2027年のカレンダーは作成されていません。"_q);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form && form->isVisible());
    of("txtYear").setFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(text("txtYear") + days().grid()->CellText(365, 1), u"20272027/12/31(金)"_q);
    EXPECT_FALSE(isUpdatable());
    press(Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(FrmCalendar, RulesAreCarriedIntoTheCalendar) {
    QFile::copy(QStringLiteral(KURBO_DATA "/Holiday.txt"), desk.paths.HolidayPath);
    open();
    trigger("mnuHoliday");
    const QPointer<frmHoliday> rules = form->findChild<frmHoliday*>();
    ASSERT_TRUE(rules && QTest::qWaitFor([&] { return QApplication::activeWindow() == rules; }));
    Grid& grid = named<Grid>(*rules, "vfgHoliday");
    typeCell(grid, 1, 1, u"期間"_q);
    desk.prompts.expect(u"1行目で開始日付が正しく入力されていません。"_q);
    named<QPushButton>(*rules, "cmdWrite").click();
    typeCell(grid, 1, 3, u"0812"_q);
    typeCell(grid, 1, 4, u"0814"_q);
    typeCell(grid, 1, 5, u"Obon"_q);
    typeCell(grid, 1, 6, u"全日"_q);
    EXPECT_EQ(named<QLabel>(*rules, "lblHoliday").text(), u"祝日ファイル：2027年"_q);
    desk.prompts.expect(u"2026年の祝日ファイルを作成して"_q, Answer::Yes);
    named<QPushButton>(*rules, "cmdHoliday").click();
    desk.prompts.expect(u"指定された休日をカレンダーに設定します。\r\n\r\nよろしいですか？"_q);
    named<QAction>(*rules, "mnuWrite").trigger();
    EXPECT_FALSE(rules && rules->isVisible());
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(update);
    click("cmdUpdate");
    EXPECT_EQ(stored(u"20260813"_q), u"Obon 0"_q);
    EXPECT_EQ(stored(u"20260112"_q), u"成人の日 0"_q) << "the second Monday of the year that is shown";
}

} // namespace kurbo::test
