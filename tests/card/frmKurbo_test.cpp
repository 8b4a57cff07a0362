#include "card/card_window.h"

#include <QClipboard>
#include <QMenu>
#include <QRadioButton>

namespace kurbo::test {
namespace {

constexpr int plan = static_cast<int>(CardColumn::Plan);
constexpr int enter = static_cast<int>(CardColumn::Enter);

class FrmKurbo : public CardWindow {
  protected:
    [[nodiscard]] QString heading(int day) const {
        return cells().headerData(firstCardDay + day - 1, Qt::Vertical, Qt::DisplayRole).toString();
    }
};

TEST_F(FrmKurbo, AnOrdinaryPersonSeesTheOwnCardOnly) {
    connection.execute(u"UPDATE T01_Calendar SET F_Type = IIf(F_DateID = '20260404', '3', '1') "
                       "WHERE F_DateID IN ('20260404', '20260405')"_q);
    openAs(u"1001"_q);
    EXPECT_EQ(shown(), u"1001 2026/04/01-2026/04/30"_q);
    EXPECT_TRUE(of<QRadioButton>("optMonth_4").isChecked());
    for (const char* closed : {"dcbSection", "dcbStaff", "cmdUpdate", "cmdGoOut"})
        EXPECT_FALSE(of<QWidget>(closed).isEnabled()) << closed;
    EXPECT_FALSE(of<QAction>("mnuDelete").isEnabled());
    EXPECT_EQ(cells().CellText(firstCardDay + 3, 2) + cells().CellText(firstCardDay + 4, 2), u"法定休日午前"_q);
    EXPECT_EQ(cells().CellForeColor(firstCardDay + 3, 1), (GridColour{255, 0, 0}));
    EXPECT_EQ(cells().CellForeColor(firstCardDay + 4, 1), (GridColour{0, 0, 255}));
}

TEST_F(FrmKurbo, ACorrectionIsTypedCheckedAndStored) {
    openAs(u"1001"_q);
    type(1, plan, u"Osaka"_q);
    EXPECT_TRUE(isUpdatable()) << "the update takes the open cell first";
    press(Qt::Key_Escape);
    EXPECT_FALSE(isUpdatable()) << "nothing is changed";
    type(1, plan, u"Osaka"_q);
    press(Qt::Key_Tab);
    EXPECT_TRUE(isUpdatable());
    EXPECT_EQ(heading(1), u"*1"_q);
    type(1, static_cast<int>(CardColumn::Date), u"x"_q);
    EXPECT_TRUE(form->statusBar()->currentMessage().startsWith(u"編集できません"_q));
    type(6, enter, u"09:00"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    press(Qt::Key_Return);
    of<QPushButton>("cmdUpdate").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(form->focusWidget(), &grid()) << "not on the next button";
    EXPECT_EQ(heading(1), u"1"_q);
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE (F_KurboID = 1)"_q), u"Osaka"_q);
    EXPECT_EQ(cell(6, static_cast<int>(CardColumn::Id)), u"4"_q);
}

TEST_F(FrmKurbo, PastedAndClearedPunchesAreEdits) {
    openAs(u"1001"_q);
    QApplication::clipboard()->setText(u"08:30\t17:00\r\n"_q);
    grid().setFocus();
    grid().Select(firstCardDay, enter);
    QTest::keyClick(&grid(), Qt::Key_Right, Qt::ShiftModifier);
    trigger("mnuGPaste");
    grid().Select(firstCardDay + 2, enter);
    trigger("mnuGClear");
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_EQ(asked(u"SELECT F_Enter FROM T02_Kurbo WHERE (F_KurboID = 1)"_q), u"2026/04/01 08:30:00"_q);
    EXPECT_EQ(asked(u"SELECT F_Enter FROM T02_Kurbo WHERE (F_KurboID = 3)"_q), u"-"_q);
}

TEST_F(FrmKurbo, APersonAMonthAndARangeAreChosen) {
    openAs(u"1002"_q);
    EXPECT_EQ(shown(), u"1002 2026/03/21-2026/04/20"_q);
    choose("dcbStaff", u"1001"_q);
    EXPECT_EQ(shown(), u"1001 2026/04/01-2026/04/30"_q);
    grid().Select(firstCardDay + 20, plan);
    click("optMonth_2");
    EXPECT_EQ(shown() + QString::number(grid().Row()), u"1001 2026/02/01-2026/02/284"_q) << "from its top";
    type(1, plan, u"x"_q);
    press(Qt::Key_Return);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::No);
    click("optMonth_3");
    EXPECT_TRUE(of<QRadioButton>("optMonth_2").isChecked());
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(u"カレンダーが作成されていません。"_q);
    QTest::keyClick(&of<QWidget>("txtYear"), Qt::Key_Up);
    EXPECT_EQ(of<QLineEdit>("txtYear").text() + shown(), u"20261001 2026/02/01-2026/02/28"_q);
    of<MaskedBox>("mskStart").setText(u"2026/04/02"_q);
    of<MaskedBox>("mskEnd").setText(u"2026/04/03"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    click("cmdDisplay");
    EXPECT_EQ(shown(), u"1001 2026/04/02-2026/04/03"_q);
    desk.prompts.expect(u"2026/04/03(金) 退社時刻 : 06:30:00"_q);
    Q_EMIT grid().doubleClicked(cells().index(firstCardDay, static_cast<int>(CardColumn::Leave)));
    type(1, plan, u"x"_q);
    press(Qt::Key_Return);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::No).expect(u"変更を破棄しますか？"_q, Answer::Yes);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(form->close());
}

TEST_F(FrmKurbo, AFileIsNamedWithItsDates) {
    openAs(u"1001"_q);
    for (int i = 0; i < 2; ++i) desk.prompts.expectFile(desk.file(u"april.krb"_q));
    trigger("mnuSaveKrb");
    click("optMonth_2");
    trigger("mnuLoadKrb");
    EXPECT_EQ(form->windowTitle() + shown(), u"Kurbo－タイムカード（april.krb）1001 2026/04/01-2026/04/30"_q);
    click("cmdDisplay");
    EXPECT_EQ(form->windowTitle(), u"Kurbo－タイムカード"_q);
}

TEST_F(FrmKurbo, AScreenWithoutACardCanOnlyBeClosed) {
    connection.execute(u"UPDATE M02_StaffInfo SET F_Weekday = 99 WHERE (F_StaffCode = '1002')"_q);
    desk.prompts.expect(u""_q);
    openAs(u"1002"_q);
    for (const char* closed : {"dcbSection", "dcbStaff", "txtYear", "mskStart", "udcEnd", "cmdDisplay", "cmdPrint",
                               "optMonth_7", "chkSuperior", "vfgKurbo"})
        EXPECT_FALSE(of<QWidget>(closed).isEnabled()) << closed;
    for (const char* closed : {"mnuMonthly", "mnuKrb", "mnuGrid"})
        EXPECT_FALSE(of<QMenu>(closed).menuAction()->isEnabled()) << closed;
    EXPECT_TRUE(form->close());
}

} // namespace
} // namespace kurbo::test
