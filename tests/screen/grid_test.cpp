#include "screen/grid/grid.h"

#include "support/desk.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScrollBar>
#include <QTest>

namespace kurbo::test {
namespace {

// Column 1 takes numbers, column 2 the words of a list, column 3 a masked time, column 4 is a box, column 5 is closed.
struct Rules final : GridRules {
    [[nodiscard]] bool mayEdit(int /*row*/, int column) const override { return column != 5; }
    [[nodiscard]] QString comboList(int row, int column) const override {
        return column == 2 && row > 2 ? u"|全日|午前"_q : QString();
    }
    [[nodiscard]] QString refusal(int /*row*/, int column, const QString& text) const override {
        bool number = false;
        (void)text.toInt(&number);
        return column == 1 && !number ? u"数値を入力して下さい。"_q : QString();
    }
};

// A heading, two rows that stay in view, forty that scroll.
class GridOnScreen : public ::testing::Test {
  protected:
    GridOnScreen() {
        cells.setRules(&rules);
        grid.setGrid(cells, desk.context);
        cells.reset({.rows = 43, .columns = 6, .frozenRows = 2, .frozenColumns = 1});
        cells.FormatString(u"No|^数|^種別|^時刻|^可|^計"_q);
        cells.ColEditMask(3, u"##:##"_q);
        cells.ColDataType(4, GridType::YesNo);
        for (int row = 1; row < 43; ++row) cells.fillRow(row, {QString::number(row), u"1"_q, {}, {}, u"0"_q, u"-"_q});
        grid.resize(420, 300);
        grid.show();
        grid.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
    }
    void press(int key, Qt::KeyboardModifiers with = Qt::NoModifier) { QTest::keyClick(focus(), Qt::Key(key), with); }
    // The first sign opens the editor, which takes the others.
    void type(const QString& text) {
        for (const QChar sign : text) QTest::keyClick(focus(), sign.toLatin1());
    }
    [[nodiscard]] QWidget* focus() { return grid.focusWidget() ? grid.focusWidget() : &grid; }
    void click(int row, int column) {
        const QPoint place = grid.cellRect(row, column).center();
        QWidget* const under = grid.childAt(place);
        ASSERT_TRUE(under);
        QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(&grid, place));
    }
    [[nodiscard]] QString cursor() const { return u"%1,%2"_q.arg(grid.Row()).arg(grid.Col()); }

    Desk desk;
    Rules rules;
    GridModel cells;
    Grid grid;
};

TEST_F(GridOnScreen, TypedTextIsTakenByEnterAndTab) {
    EXPECT_EQ(cursor(), u"3,1"_q) << "the first cell behind what stays in view";
    type(u"25"_q);
    press(Qt::Key_Return);
    press(Qt::Key_F2);
    type(u"7"_q);
    press(Qt::Key_Tab);
    EXPECT_EQ(cells.TextMatrix(3, 1) + cells.TextMatrix(4, 1) + u' ' + cursor(), u"257 4,2"_q);
    press(Qt::Key_Right);
    type(u"0930"_q);
    press(Qt::Key_Return);
    EXPECT_EQ(cells.TextMatrix(4, 3), u"09:30"_q);
    press(Qt::Key_Up);
    press(Qt::Key_F2);
    for (int digit = 0; digit < 5; ++digit) press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_EQ(cells.TextMatrix(4, 3), u""_q) << "a mask without digits is empty";
    click(5, 5);
    type(u"-42"_q);
    EXPECT_TRUE(cursor() == u"5,5" && !grid.isEditing()) << "typing on a closed cell leads nowhere";
}

TEST_F(GridOnScreen, ARefusedTextKeepsItsEditorOpen) {
    type(u"x"_q);
    for (const std::function<void()>& leave :
         std::initializer_list<std::function<void()>>{[&] { press(Qt::Key_Return); }, [&] { press(Qt::Key_Down); },
                                                      [&] { EXPECT_FALSE(grid.finishEdit()); }, [&] { click(6, 2); }}) {
        desk.prompts.expect(u"数値を入力して下さい。"_q);
        leave();
        QCoreApplication::processEvents();
        EXPECT_TRUE(desk.prompts.allShown());
        EXPECT_EQ(cells.TextMatrix(3, 1) + u' ' + cursor() + grid.EditText(), u"1 3,1x"_q);
    }
    press(Qt::Key_Backspace);
    type(u"8"_q);
    press(Qt::Key_Down);
    EXPECT_EQ(cells.TextMatrix(3, 1) + u' ' + cursor(), u"8 4,1"_q);
}

TEST_F(GridOnScreen, FrozenRowsStayInViewAndAreEditedThere) {
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.Row(), 42);
    EXPECT_GT(grid.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(grid.rect().contains(grid.cellRect(1, 2)));
    click(1, 1);
    EXPECT_GT(grid.verticalScrollBar()->value(), 0) << "the days stay where they were";
    type(u"5"_q);
    press(Qt::Key_Return);
    EXPECT_EQ(cells.TextMatrix(1, 1) + u' ' + cursor(), u"5 2,1"_q);
}

TEST_F(GridOnScreen, ListsAndBoxesAreWorkedByKeyAndMouse) {
    grid.Select(5, 2);
    press(Qt::Key_F2);
    auto* const list = grid.findChild<QComboBox*>();
    ASSERT_TRUE(list);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(cells.TextMatrix(5, 2), u"午前"_q);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    grid.Select(8, 2);
    const QPoint cell = grid.visualRect(cells.index(8, 2)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, cell);
    auto* const open = grid.findChild<QComboBox*>();
    ASSERT_TRUE(open && open->view()->isVisible());
    const QRect second = open->view()->visualRect(open->model()->index(1, 0));
    QTest::mouseMove(open->view()->viewport(), second.center());
    QTest::mouseClick(open->view()->viewport(), Qt::LeftButton, {}, second.center());
    QCoreApplication::processEvents();
    EXPECT_EQ(cells.TextMatrix(8, 2), u"全日"_q);
    EXPECT_FALSE(grid.isEditing());
    click(6, 4);
    EXPECT_TRUE(cells.CellChecked(6, 4));
    press(Qt::Key_Delete);
    EXPECT_FALSE(cells.CellChecked(6, 4));
}

TEST_F(GridOnScreen, ASpreadsheetsCellsGoInAndOut) {
    QClipboard* const clipboard = QApplication::clipboard();
    // As LibreOffice Calc leaves two rows of two cells, and as Excel does.
    clipboard->setText(u"12\t全日\n34\t午前\n"_q);
    grid.Select(3, 1);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cells.TextMatrix(3, 1) + cells.TextMatrix(4, 2), u"12午前"_q);
    clipboard->setText(u"56\t \r\n"_q);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard->text(), u"56\t\r\n34\t午前\r\n"_q);
    grid.Select(3, 5);
    desk.prompts.expect(u"貼付先が編集不可の設定になっています。"_q);
    press(Qt::Key_V, Qt::ControlModifier);
}

} // namespace
} // namespace kurbo::test
