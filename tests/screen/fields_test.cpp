#include "screen/fields/data_combo.h"
#include "screen/fields/fields.h"
#include "screen/fields/masked_box.h"
#include "screen/fields/up_down.h"
#include "support/desk.h"
#include "support/table.h"

#include <QApplication>
#include <QCompleter>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace kurbo::test {
namespace {

TEST(UpDown, ButtonsAndKeysOfTheFieldAreOne) {
    QWidget form;
    QLineEdit field(&form);
    UpDown udc(&form);
    int value = 0;
    QObject::connect(&udc, &UpDown::UpClick, &form, [&] { ++value; });
    QObject::connect(&udc, &UpDown::DownClick, &form, [&] { --value; });
    udc.setBuddy(&field);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    field.setFocus();
    for (const int button : {0, 0, 1}) QTest::mouseClick(udc.findChildren<QToolButton*>()[button], Qt::LeftButton);
    EXPECT_EQ(value, 1);
    const auto pressed = [&](Qt::Key key, bool held) {
        QKeyEvent event(QEvent::KeyPress, key, {}, QString(), held);
        QCoreApplication::sendEvent(&field, &event);
        return value;
    };
    EXPECT_EQ(pressed(Qt::Key_Up, false), 2);
    EXPECT_EQ(pressed(Qt::Key_Down, false), 1);
    EXPECT_EQ(pressed(Qt::Key_Up, true), 1);
    udc.setRepeats(true);
    EXPECT_EQ(pressed(Qt::Key_Up, true), 2);
}

const QList<CodeName> people{{u"1"_q, u"Sato"_q}, {u"2"_q, u"Suzuki"_q}, {u"3"_q, u"Sato"_q}};

TEST(DataCombo, GivesTheCodeOfTheShownNameOrTheTypedText) {
    DataCombo combo;
    combo.setEntries(people);
    combo.setBoundText(u"2"_q);
    EXPECT_EQ(combo.currentText(), u"Suzuki");
    combo.setEditText(u"ADMIN"_q);
    EXPECT_EQ(combo.boundText(), u"ADMIN");
    EXPECT_FALSE(combo.isInList());
    combo.setCurrentIndex(2);
    EXPECT_EQ(combo.boundText(), u"3") << "people of one name";
}

TEST(DataCombo, LeavesTheTextAndTheClicksToThePerson) {
    QWidget form;
    DataCombo combo(&form);
    QLineEdit next(&form);
    next.move(0, 200);
    combo.setEntries(people);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    combo.setFocus();
    QTest::keyClicks(&combo, u"Su"_q);
    EXPECT_EQ(combo.completer()->completionCount(), 1);
    QWidget* const list = QApplication::activePopupWidget();
    QTest::mouseClick(list, Qt::LeftButton, {}, list->mapFromGlobal(next.mapToGlobal(QPoint(5, 5))));
    EXPECT_TRUE(next.hasFocus()) << "the click went into closing the list";
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Return);
    EXPECT_EQ(combo.count(), 3) << "typed text was inserted";
    EXPECT_EQ(combo.currentText(), u"Su");
}

const QString refusal = QStringLiteral("不正な入力です。");

// A date box that refuses, a field after it, and two buttons.
struct MaskedBoxes : ::testing::Test {
    MaskedBoxes() {
        auto* const column = new QVBoxLayout(&form);
        for (QWidget* field : std::initializer_list<QWidget*>{&box, &next, &button, &cancel}) column->addWidget(field);
        cancel.setObjectName(u"cmdCancel"_q);
        box.setRefusal(refusal, prompts);
        QObject::connect(&button, &QPushButton::clicked, &form, [this] { ++clicks; });
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        box.setFocus(Qt::TabFocusReason);
    }
    void type(const QString& text) { QTest::keyClicks(&box, text); }
    static void pressTab() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    static void click(QWidget& target) {
        QTest::mouseClick(&target, Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    ScriptedPrompts prompts;
    QWidget form;
    MaskedBox box;
    QLineEdit next;
    QPushButton button;
    QPushButton cancel;
    int clicks = 0;
};

// Kind (0 day, 1 month, 2 time), blank text, what is typed, what stands there then, and the day, or "-" where it is a
// good text without one.
TEST_F(MaskedBoxes, TextsOfEachKind) {
    for (const QStringList& row : rowsOf("0 | ____/__/__ | 20260229   | 2026/02/29 |\n"
                                         "0 | ____/__/__ | 2024/02/29 | 2024/02/29 | 20240229\n"
                                         "1 | ____/__    | 202604     | 2026/04    | 20260401\n"
                                         "2 | __:__      | 2359       | 23:59      | -\n"
                                         "2 | __:__      | 2500       | 25:00      |")) {
        SCOPED_TRACE(row.join(u'|').toStdString());
        box.setKind(std::array{MaskedBox::Date, MaskedBox::Month, MaskedBox::Time}[row[0].toUInt()]);
        EXPECT_TRUE(box.isBlank());
        EXPECT_EQ(box.maskText(), row[1]);
        type(row[2]);
        EXPECT_EQ(box.maskText(), row[3]);
        EXPECT_EQ(box.isValid(), !row[4].isEmpty());
        EXPECT_EQ(box.day(), parseDateId(row[4]));
    }
}

TEST_F(MaskedBoxes, TakeOtherDigitsAndAnotherDayOverTheFirst) {
    for (const QString& composed : {u"２０２４"_q, u"①"_q, u"年"_q, u"0４０１"_q}) {
        QInputMethodEvent event;
        event.setCommitString(composed);
        QCoreApplication::sendEvent(&box, &event);
    }
    EXPECT_EQ(box.maskText(), u"2024/04/01"_q);
    pressTab();
    EXPECT_TRUE(next.hasFocus());
    QTest::keyClick(&next, Qt::Key_Backtab);
    type(u"20270312"_q);
    EXPECT_EQ(box.maskText(), u"2027/03/12"_q) << "the text was not selected";
    click(next);
    click(box);
    EXPECT_EQ(box.selectedText(), u"2027/03/12"_q) << "the first click takes all";
}

TEST_F(MaskedBoxes, HoldThePersonWhileTheTextIsBad) {
    type(u"20260431"_q);
    prompts.expect(refusal).expect(refusal).expect(refusal);
    pressTab();
    click(next);
    EXPECT_TRUE(box.hasFocus());
    click(button);
    EXPECT_TRUE(prompts.allShown());
    EXPECT_EQ(clicks, 0) << "the click did something in spite of the refusal";
    type(u"20260430"_q);
    click(button);
    EXPECT_EQ(clicks, 1);
    box.clear();
    box.setFocus();
    pressTab();
    EXPECT_TRUE(next.hasFocus()) << "an empty box is no bad one";
}

TEST_F(MaskedBoxes, LetGoOfWhoDoesNotLeaveForAField) {
    MaskedBox other(&form);
    other.setRefusal(refusal, prompts);
    other.setText(u"2026"_q);
    other.show();
    type(u"1"_q);
    prompts.expect(refusal);
    click(other);
    EXPECT_TRUE(box.hasFocus()) << "two bad boxes do not quarrel";
    click(cancel);
    EXPECT_TRUE(cancel.hasFocus());
}

} // namespace
} // namespace kurbo::test
