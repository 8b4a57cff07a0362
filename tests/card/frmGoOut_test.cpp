#include "card/outings/frmGoOut.h"

#include "card/card_grid.h"
#include "card/card_office.h"
#include "card/frmKurbo.h"
#include "paper/frmPreview.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/masked_box.h"
#include "screen/grid/grid.h"
#include "support/window.h"

#include <QWindow>

namespace kurbo::test {
namespace {

const QString leaveDay = u"外出出張明細は変更されています。変更を破棄しますか？"_q;
const QString leaveForm = u"外出明細は変更されています。変更を破棄しますか？"_q;
const QString update = u"追加・変更を更新します。"_q;

// The outings beside the card, worked as a person works them. 1002 may see and write everybody's.
class FrmGoOut : public CardOffice {
  protected:
    FrmGoOut() {
        for (const char16_t* right : {u"F_ReadMyGoOut", u"F_ReadOtherGoOut", u"F_WriteOtherGoOut"})
            connection.execute(
                u"UPDATE M08_Access SET %1 = True WHERE (F_AccessCode = 2)"_q.arg(QString::fromUtf16(right)));
        connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_Expense) "
                           "VALUES (1, 1, #2026/04/01 10:05:31#, 1200)"_q);
        logIn(u"1002"_q);
        card = new frmKurbo(client);
        card->load();
        card->show();
        choose(u"1001"_q);
    }
    ~FrmGoOut() override { delete card; }

    void choose(const QString& staff) const {
        auto* const list = card->findChild<DataCombo*>(u"dcbStaff"_q);
        list->setBoundText(staff);
        Q_EMIT list->activated(list->currentIndex());
    }
    void open() {
        named<QAction>(*card, "mnuDetail").trigger();
        ASSERT_TRUE(form());
        ASSERT_TRUE(QTest::qWaitForWindowActive(form()));
    }
    [[nodiscard]] static frmGoOut* form() { return onScreen<frmGoOut>(); }
    // Of the preview over a window; it is closed.
    [[nodiscard]] static QString previewOf(const QWidget& window) {
        auto* const preview = window.findChild<frmPreview*>();
        const QString title = preview ? preview->windowTitle() : QString();
        delete preview;
        return title;
    }
    [[nodiscard]] static Grid& grid() { return named<Grid>(*form(), "vfgGoOut"); }
    [[nodiscard]] static QString total() { return grid().grid()->TextMatrix(1, 5) + grid().grid()->TextMatrix(1, 6); }
    [[nodiscard]] static bool isUpdatable() {
        EXPECT_EQ(named<QWidget>(*form(), "cmdUpdate").isEnabled(), named<QAction>(*form(), "mnuUpdate").isEnabled());
        return named<QWidget>(*form(), "cmdUpdate").isEnabled();
    }
    static void press(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
    static void type(int row, int column, const QString& text) {
        form()->activateWindow();
        grid().setFocus();
        grid().Select(row, column);
        for (const QChar sign : text) QTest::keyClick(QApplication::focusWidget(), sign.toLatin1());
        press(Qt::Key_Return);
    }
    // A day of the card, from 1; the form follows when the move is over.
    void goTo(int day) {
        named<Grid>(*card, "vfgKurbo").Select(firstCardDay + day - 1, 3);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] int currentDay() const { return named<Grid>(*card, "vfgKurbo").Row() - firstCardDay + 1; }

    QPointer<frmKurbo> card;
};

TEST_F(FrmGoOut, OutingsAreTypedAndStored) {
    open();
    EXPECT_EQ(form()->windowTitle(), u"Kurbo－外出明細"_q);
    // Desktops keep only a dialog above its owner.
    EXPECT_TRUE(form()->windowHandle()->transientParent() == card->windowHandle() &&
                form()->windowType() == Qt::Dialog);
    EXPECT_EQ(form()->focusWidget(), &grid());
    EXPECT_EQ(named<MaskedBox>(*form(), "mskStart").maskText() + named<MaskedBox>(*form(), "mskEnd").maskText(),
              u"2026/04/012026/04/30"_q);
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,200"_q);
    grid().Select(2, 3);
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    EXPECT_FALSE(isUpdatable()) << "an editor that was only opened changes nothing";
    desk.prompts.expect(u"不正な入力です。時刻をhh:mm形式(半角)で入力して下さい。"_q);
    type(2, 4, u"9:00"_q);
    grid().cancelEdit();
    type(2, 4, u"11:00"_q);
    type(2, 5, u"Osaka"_q);
    type(3, 5, u"Os"_q);
    type(3, 6, u"300"_q);
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(update);
    named<QPushButton>(*form(), "cmdUpdate").click();
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_Out FROM T03_GoOut WHERE F_Order = 1"_q), u"2026/04/01 10:05:31"_q);
    EXPECT_EQ(asked(u"SELECT F_DestName FROM T04_Destination WHERE F_User = '1001' ORDER BY F_DestCode"_q), u"Osaka"_q);
    EXPECT_EQ(grid().grid()->ColComboList(5).source(), u"|Os|Osaka"_q);
    desk.prompts.expect(u"カレント行の上に１行挿入します。"_q).expect(u"カレント行を削除します。"_q);
    grid().Select(3, 5);
    named<QAction>(*form(), "mnuGInsert").trigger();
    EXPECT_EQ(grid().Row(), 3);
    named<QAction>(*form(), "mnuGDelete").trigger();
    EXPECT_EQ(grid().grid()->TextMatrix(3, 5), u"Os"_q);
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(leaveForm, Answer::No).expect(leaveForm, Answer::Yes);
    press(Qt::Key_Escape);
    ASSERT_TRUE(form());
    press(Qt::Key_Escape);
    EXPECT_FALSE(form());
}

TEST_F(FrmGoOut, ItFollowsTheRowOfTheCard) {
    open();
    goTo(2);
    EXPECT_EQ(total(), u"26/04/02(木)  合計"_q);
    goTo(6);
    EXPECT_FALSE(named<QAction>(*form(), "mnuGPaste").isEnabled()) << "no card row";
    QTest::keyClick(&grid(), Qt::Key_1);
    EXPECT_EQ(form()->statusBar()->currentMessage(), u"タイムカードの打刻記録が無いため編集できません"_q);
    goTo(1);
    type(3, 6, u"300"_q);
    desk.prompts.expect(leaveDay, Answer::No);
    goTo(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(currentDay(), 1) << "asked once";
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,500"_q);
    desk.prompts.expect(leaveDay, Answer::No);
    choose(u"1003"_q);
    EXPECT_EQ(named<DataCombo>(*card, "dcbStaff").boundText(), u"1001"_q);
    desk.prompts.expect(leaveDay, Answer::Yes);
    choose(u"1003"_q);
    EXPECT_EQ(total(), u"26/04/01(水)  合計"_q);
    EXPECT_FALSE(isUpdatable());
    choose(u"1001"_q);
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,200"_q);
}

TEST_F(FrmGoOut, ItKeepsItsChangesBesideAnUpdateOfTheCard) {
    open();
    type(3, 6, u"300"_q);
    named<Grid>(*card, "vfgKurbo").grid()->edit(firstCardDay + 5, 3, u"x"_q);
    desk.prompts.expect(update);
    named<QAction>(*card, "mnuUpdate").trigger();
    EXPECT_EQ(total(), u"26/04/01(水)  合計¥1,500"_q);
    desk.prompts.expect(leaveDay, Answer::Yes);
    goTo(6);
    EXPECT_TRUE(named<QAction>(*form(), "mnuGPaste").isEnabled()) << "the update has made its card row";
    type(2, 6, u"100"_q);
    desk.prompts.expect(leaveForm, Answer::No);
    EXPECT_FALSE(card->close());
    EXPECT_TRUE(card->isVisible() && form());
    desk.prompts.expect(leaveForm, Answer::Yes);
    EXPECT_TRUE(card->close());
    EXPECT_FALSE(form());
}

TEST_F(FrmGoOut, WhatCantBeShownOrWrittenIsTold) {
    open();
    QPointer<frmGoOut> first = form();
    named<QAction>(*card, "mnuDetail").trigger();
    EXPECT_EQ(form(), first) << "brought to the front";
    named<QPushButton>(*form(), "cmdPrint").click();
    EXPECT_EQ(previewOf(*form()), u"Kurbo－外出出張明細"_q);
    desk.prompts.expect(u"開始日付が終了日付以降に設定されています。"_q);
    QTest::keyClick(&named<QWidget>(*form(), "mskStart"), Qt::Key_Up);
    named<MaskedBox>(*form(), "mskEnd").setText(u"2026/04/01"_q);
    named<QAction>(*form(), "mnuPrint").trigger();
    choose({});
    type(3, 6, u"300"_q);
    desk.prompts.expect(u"タイムカードの氏名が未入力のため、外出明細を更新できません。"_q)
        .expect(u"氏名が入力されていません。"_q);
    named<QAction>(*form(), "mnuUpdate").trigger();
    named<QPushButton>(*card, "cmdGoOut").click();
    desk.prompts.expect(leaveDay, Answer::Yes);
    choose(u"1002"_q);
    EXPECT_FALSE(named<QAction>(*form(), "mnuGInsert").isEnabled()) << "no right to write the own outings";
    named<MaskedBox>(*card, "mskEnd").setText(u"2026/02/30"_q);
    desk.prompts.expect(u"期間が不正です。"_q).expect(u"期間が不正です。"_q);
    named<QAction>(*card, "mnuDetail").trigger();
    named<QAction>(*card, "mnuList").trigger();
    named<MaskedBox>(*card, "mskEnd").setText(u"2026/04/30"_q);
    named<QAction>(*card, "mnuList").trigger();
    EXPECT_EQ(previewOf(*card), u"Kurbo－外出出張明細"_q);
    named<QPushButton>(*card, "cmdPrint").click();
    EXPECT_EQ(previewOf(*card), u"Kurbo－タイムカード"_q);
}

TEST_F(FrmGoOut, ItGoesBeforeOutingsThatMayNotBeSeen) {
    open();
    connection.execute(u"UPDATE M08_Access SET F_ReadMyGoOut = False WHERE (F_AccessCode = 2)"_q);
    logIn(u"1002"_q);
    choose(u"1002"_q);
    EXPECT_FALSE(form());
}

// Not only when the form is opened anew.
TEST_F(FrmGoOut, ItsPreviewGoesWithIt) {
    open();
    named<QPushButton>(*form(), "cmdPrint").click();
    const QPointer<frmPreview> preview = form()->findChild<frmPreview*>();
    ASSERT_TRUE(preview && preview->isVisible());
    EXPECT_TRUE(form()->close());
    EXPECT_FALSE(preview && preview->isVisible());
}

} // namespace
} // namespace kurbo::test
