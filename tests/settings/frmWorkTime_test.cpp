#include "settings/work_time/frmWorkTime.h"

#include "screen/fields/data_list.h"
#include "settings/times.h"
#include "support/window.h"

#include <QClipboard>
#include <QTabWidget>

namespace kurbo::test {
namespace {

const QString update = u"追加・変更を更新します。\r\n\r\nよろしいですか？"_q;
const QString discard = u"平日勤務時間は変更されています。変更を破棄しますか？"_q;

// The window, worked as an administrator works it.
class FrmWorkTime : public Window<frmWorkTime, Times> {
  protected:
    [[nodiscard]] Grid& grid() const { return of<Grid>("vfgWeekday"); }
    [[nodiscard]] QString cell(int row, int column) const { return grid().grid()->TextMatrix(row, column); }
};

TEST_F(FrmWorkTime, TimesAreTypedRefusedAndStored) {
    open();
    choose("dtsWeekday", 1);
    EXPECT_EQ(of<QLineEdit>("txtWeekday").text() + cell(2, 1) + cell(2, 2), u"日勤09:0017:30"_q);
    typeCell(grid(), 5, 1, u"1800"_q);
    typeCell(grid(), 5, 2, u"2200"_q);
    EXPECT_TRUE(isUpdatable("Weekday"));
    desk.prompts.expect(discard, Answer::No);
    choose("dtsWeekday", 0);
    EXPECT_EQ(of<DataList>("dtsWeekday").boundText() + cell(5, 1), u"118:00"_q);
    desk.prompts.expect(update);
    trigger("mnuUpdateWeekday");
    EXPECT_FALSE(isUpdatable("Weekday"));
    EXPECT_EQ(asked(u"SELECT F_StartOver0 FROM M03_WeekdayStyle WHERE (F_WeekdayCode = 1)"_q), u"18:00"_q);
    choose("dtsWeekday", 0);
    of<QLineEdit>("txtWeekday").setText(u"夜勤"_q);
    desk.prompts.expect(u"就業時間が入力されていません。"_q);
    click("cmdUpdateWeekday");
    of<QTabWidget>("tabTime").setCurrentIndex(Holiday);
    desk.prompts.expect(u"平日勤務時間設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    EXPECT_FALSE(form->close());
    EXPECT_EQ(of<QTabWidget>("tabTime").currentIndex(), Weekday);
}

TEST_F(FrmWorkTime, WhatIsUsedOrReservedStays) {
    open();
    desk.prompts.expect(u"「新しい勤務時間」は削除できません。"_q)
        .expect(u"表示されている平日勤務時間設定は使用されているため削除できません。"_q);
    trigger("mnuDeleteWeekday");
    choose("dtsWeekday", 1);
    trigger("mnuDeleteWeekday");
    EXPECT_EQ(of<DataList>("dtsWeekday").count(), 2);
    connection.execute(u"UPDATE M02_StaffInfo SET F_AdjustHours = 0"_q);
    of<QTabWidget>("tabTime").setCurrentIndex(Adjust);
    choose("dtsAdjust", 1);
    const QString question = u"表示されている時間調整設定を削除します。"_q;
    connection.engine("CREATE TRIGGER Kept BEFORE DELETE ON M07_AdjustHours BEGIN SELECT RAISE(ABORT, 'kept'); END");
    desk.prompts.expect(question).expect(u"エラー番号"_q).expect(u"設定の削除に失敗しました。"_q).expect(question);
    trigger("mnuDeleteAdjust");
    EXPECT_EQ(of<DataList>("dtsAdjust").count(), 2);
    connection.engine("DROP TRIGGER Kept");
    trigger("mnuDeleteAdjust");
    EXPECT_EQ(of<DataList>("dtsAdjust").boundText() + text("txtAdjust"), u"0新しい時間調整"_q);
}

TEST_F(FrmWorkTime, APasteGoesToTheGridInViewAndARefusedCellStaysThere) {
    open();
    QApplication::clipboard()->setText(u"18:00\t20:00\t21:00"_q);
    grid().setFocus();
    grid().selectionModel()->select({grid().model()->index(4, 1), grid().model()->index(4, 3)},
                                    QItemSelectionModel::ClearAndSelect);
    trigger("mnuGPaste");
    EXPECT_EQ(cell(4, 1) + cell(4, 2) + cell(4, 3), u"18:0020:00"_q);
    EXPECT_TRUE(isUpdatable("Weekday"));
    grid().Select(2, 1);
    QTest::keyClick(&grid(), '9');
    ASSERT_TRUE(grid().isEditing());
    desk.prompts.expect(u"不正な入力です。時刻をhh:mm形式(00:00～23:59)で入力して下さい。"_q);
    of<QTabWidget>("tabTime").setCurrentIndex(Adjust);
    QCoreApplication::processEvents();
    EXPECT_EQ(of<QTabWidget>("tabTime").currentIndex(), Weekday);
    EXPECT_TRUE(grid().isEditing());
}

TEST_F(FrmWorkTime, PagesFollowTheWorkStyleAndThePageThatIsAsked) {
    setStyle(u"F_AmHolidayWork = 0"_q);
    open();
    form->setFirstPage(PmHoliday);
    form->load();
    EXPECT_EQ(of<QTabWidget>("tabTime").currentIndex(), PmHoliday);
    EXPECT_FALSE(of<QTabWidget>("tabTime").isTabVisible(AmHoliday));
    EXPECT_FALSE(of<QMenu>("mnuWeekday").isEnabled());
    connection.execute(u"DELETE * FROM M07_AdjustHours WHERE (F_AdjustCode = 0)"_q);
    desk.prompts.expect(u"新しい時間調整が削除されています。"_q);
    open();
    EXPECT_FALSE(of<QTabWidget>("tabTime").isEnabled());
}

} // namespace
} // namespace kurbo::test
