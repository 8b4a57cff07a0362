#include "card/outings/frmGoOut.h"

#include "card/card_window.h"
#include "paper/frmPreview.h"

#include <QWindow>

namespace kurbo::test {
namespace {

const QString leaveDay = u"外出出張明細は変更されています。変更を破棄しますか？"_q;
const QString leaveForm = u"外出明細は変更されています。変更を破棄しますか？"_q;
const QString update = u"追加・変更を更新します。"_q;

// The outings beside the card, worked as a person works them. 1002 may see and write everybody's.
class FrmGoOut : public CardWindow {
  protected:
    FrmGoOut() {
        connection.execute(u"UPDATE M08_Access SET F_ReadMyGoOut = True, F_ReadOtherGoOut = True, "
                           "F_WriteOtherGoOut = True WHERE (F_AccessCode = 2)"_q);
        insert("T03_GoOut", "KurboID, Order, Out, Expense", u"1, 1, #2026/04/01 10:05:31#, 1200"_q);
        openAs(u"1002"_q);
        choose(u"1001"_q);
    }

    void choose(const QString& staff) const { CardWindow::choose("dcbStaff", staff); }
    void open() {
        trigger("mnuDetail");
        ASSERT_TRUE(outings());
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() == &grid(); }));
    }
    [[nodiscard]] static frmGoOut* outings() { return onScreen<frmGoOut>(); }
    static void command(const char* action) { named<QAction>(*outings(), action).trigger(); }
    // Of the preview over a window; it is closed.
    [[nodiscard]] static QString previewOf(const QWidget& window) {
        auto* const preview = window.findChild<frmPreview*>();
        const QString title = preview ? preview->windowTitle() : QString();
        delete preview;
        return title;
    }
    [[nodiscard]] static Grid& grid() { return named<Grid>(*outings(), "vfgGoOut"); }
    [[nodiscard]] static QString total() { return grid().grid()->TextMatrix(1, 5) + grid().grid()->TextMatrix(1, 6); }
    [[nodiscard]] static bool isUpdatable() { return named<QWidget>(*outings(), "cmdUpdate").isEnabled(); }
    static void type(int row, int column, const QString& text) {
        outings()->activateWindow();
        typeCell(grid(), row, column, text);
    }
    // A day of the card, from 1; the form follows when the move is over.
    void goTo(int day) const {
        CardWindow::grid().Select(firstCardDay + day - 1, 3);
        QCoreApplication::processEvents();
    }
};

TEST_F(FrmGoOut, OutingsAreTypedAndStored) {
    open();
    // Desktops keep only a dialog above its owner.
    EXPECT_TRUE(outings()->windowHandle()->transientParent() == form->windowHandle() &&
                outings()->windowType() == Qt::Dialog);
    EXPECT_EQ(outings()->focusWidget(), &grid());
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,200"_q);
    type(2, 5, u"Osaka"_q);
    type(3, 6, u"300"_q);
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(update);
    named<QPushButton>(*outings(), "cmdUpdate").click();
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_DestName FROM T04_Destination WHERE F_User = '1001'"_q), u"Osaka"_q);
    desk.prompts.expect(u"カレント行の上に１行挿入します。"_q).expect(u"カレント行を削除します。"_q);
    grid().Select(2, 5);
    command("mnuGInsert");
    EXPECT_EQ(grid().grid()->TextMatrix(grid().Row(), 5), u""_q);
    command("mnuGDelete");
    EXPECT_EQ(grid().grid()->TextMatrix(2, 5), u"Osaka"_q);
    desk.prompts.expect(leaveForm, Answer::No).expect(leaveForm, Answer::Yes);
    press(Qt::Key_Escape);
    ASSERT_TRUE(outings());
    press(Qt::Key_Escape);
    EXPECT_FALSE(outings());
}

TEST_F(FrmGoOut, ItFollowsTheRowOfTheCard) {
    open();
    goTo(2);
    EXPECT_EQ(total(), u"26/04/02(木)  合計"_q);
    goTo(6);
    EXPECT_FALSE(named<QAction>(*outings(), "mnuGPaste").isEnabled()) << "no card row";
    QTest::keyClick(&grid(), Qt::Key_1);
    EXPECT_EQ(outings()->statusBar()->currentMessage(), u"タイムカードの打刻記録が無いため編集できません"_q);
    goTo(1);
    type(3, 6, u"300"_q);
    desk.prompts.expect(leaveDay, Answer::No);
    goTo(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(CardWindow::grid().Row(), firstCardDay) << "asked once";
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,500"_q);
    desk.prompts.expect(leaveDay, Answer::No);
    choose(u"1003"_q);
    EXPECT_EQ(of<DataCombo>("dcbStaff").boundText(), u"1001"_q);
    desk.prompts.expect(leaveDay, Answer::Yes);
    choose(u"1003"_q);
    EXPECT_EQ(total(), u"26/04/01(水)  合計"_q);
    EXPECT_FALSE(isUpdatable());
}

TEST_F(FrmGoOut, ItKeepsItsChangesBesideAnUpdateOfTheCard) {
    open();
    type(3, 6, u"300"_q);
    cells().edit(firstCardDay + 5, 3, u"x"_q);
    desk.prompts.expect(update);
    trigger("mnuUpdate");
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,500"_q);
    desk.prompts.expect(leaveDay, Answer::Yes);
    goTo(6);
    EXPECT_TRUE(named<QAction>(*outings(), "mnuGPaste").isEnabled()) << "the update has made its card row";
    type(2, 6, u"100"_q);
    desk.prompts.expect(leaveForm, Answer::No).expect(leaveForm, Answer::Yes);
    EXPECT_TRUE(!form->close() && outings());
    EXPECT_TRUE(form->close() && !outings());
}

TEST_F(FrmGoOut, WhatCantBeShownOrWrittenIsTold) {
    open();
    QPointer<frmGoOut> first = outings();
    trigger("mnuDetail");
    EXPECT_EQ(outings(), first) << "brought to the front";
    desk.prompts.expect(u"開始日付が終了日付以降に設定されています。"_q);
    QTest::keyClick(&named<QWidget>(*outings(), "mskStart"), Qt::Key_Up);
    named<MaskedBox>(*outings(), "mskEnd").setText(u"2026/04/01"_q);
    command("mnuPrint");
    choose({});
    desk.prompts.expect(u"氏名が入力されていません。"_q);
    click("cmdGoOut");
    choose(u"1002"_q);
    EXPECT_FALSE(named<QAction>(*outings(), "mnuGInsert").isEnabled()) << "no right to write the own outings";
    trigger("mnuList");
    EXPECT_EQ(previewOf(*form), u"Kurbo－外出出張明細"_q);
    click("cmdPrint");
    EXPECT_EQ(previewOf(*form), u"Kurbo－タイムカード"_q);
}

TEST_F(FrmGoOut, ItGoesBeforeOutingsThatMayNotBeSeen) {
    open();
    connection.execute(u"UPDATE M08_Access SET F_ReadMyGoOut = False WHERE (F_AccessCode = 2)"_q);
    logIn(u"1002"_q);
    choose(u"1002"_q);
    EXPECT_FALSE(outings());
}

} // namespace
} // namespace kurbo::test
