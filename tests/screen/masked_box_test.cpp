#include "screen/fields/masked_box.h"
#include "support/desk.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace kurbo::test {
namespace {

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
    ~MaskedBoxes() override { EXPECT_TRUE(prompts.allShown()); }

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

} // namespace

TEST_F(MaskedBoxes, TextsOfEachKind) {
    struct Case {
        MaskedBox::Kind kind;
        QString blank;
        QString typed;
        QString text;
        bool valid;
        std::optional<Day> day;
    };
    for (const auto& [kind, blank, typed, text, valid, day] :
         {Case{MaskedBox::Date, u"____/__/__"_q, u"20260229"_q, u"2026/02/29"_q, false, {}},
          Case{MaskedBox::Date, u"____/__/__"_q, u"2024/02/29"_q, u"2024/02/29"_q, true, makeDay(2024, 2, 29)},
          Case{MaskedBox::Date, u"____/__/__"_q, u"202x4"_q, u"2024/__/__"_q, false, {}},
          Case{MaskedBox::Month, u"____/__"_q, u"202604"_q, u"2026/04"_q, true, makeDay(2026, 4, 1)},
          Case{MaskedBox::Month, u"____/__"_q, u"202613"_q, u"2026/13"_q, false, {}},
          Case{MaskedBox::Time, u"__:__"_q, u"2359"_q, u"23:59"_q, true, {}},
          Case{MaskedBox::Time, u"__:__"_q, u"2500"_q, u"25:00"_q, false, {}},
          Case{MaskedBox::Time, u"__:__"_q, u"9"_q, u"9_:__"_q, false, {}}}) {
        box.setKind(kind);
        EXPECT_TRUE(box.isBlank());
        EXPECT_EQ(box.maskText(), blank);
        type(typed);
        EXPECT_EQ(box.maskText(), text);
        EXPECT_FALSE(box.isBlank());
        EXPECT_EQ(box.isValid(), valid) << text;
        EXPECT_EQ(box.day(), day) << text;
    }
}

TEST_F(MaskedBoxes, TurnFullWidthDigitsIntoHalfWidthOnes) {
    for (const QString& composed : {u"２０２４"_q, u"①"_q, u"年"_q, u"0４０１"_q}) {
        QInputMethodEvent event;
        event.setCommitString(composed);
        QCoreApplication::sendEvent(&box, &event);
    }
    EXPECT_EQ(box.maskText(), u"2024/04/01"_q);
}

TEST_F(MaskedBoxes, ShowADayAndTakeAnotherOverIt) {
    box.setDay(*makeDay(2026, 4, 1));
    EXPECT_EQ(box.maskText(), u"2026/04/01"_q);
    pressTab();
    EXPECT_TRUE(next.hasFocus());
    QTest::keyClick(&next, Qt::Key_Backtab);
    type(u"20270312"_q);
    EXPECT_EQ(box.maskText(), u"2027/03/12"_q) << "the text was not selected";
    box.setKind(MaskedBox::Month);
    box.setDay(*makeDay(2026, 11, 30));
    click(next);
    click(box);
    EXPECT_EQ(box.selectedText(), u"2026/11"_q) << "the first click takes all";
    click(box);
    EXPECT_FALSE(box.hasSelectedText());
    box.clear();
    click(box);
    type(u"202608"_q);
    EXPECT_EQ(box.maskText(), u"2026/08"_q);
}

TEST_F(MaskedBoxes, HoldThePersonWhileTheTextIsBad) {
    type(u"20260431"_q);
    prompts.expect(refusal);
    pressTab();
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), u"2026/04/31"_q);
    prompts.expect(refusal);
    click(next);
    EXPECT_TRUE(box.hasFocus());
    prompts.expect(refusal);
    click(button);
    EXPECT_EQ(clicks, 0) << "the click did something in spite of the refusal";
    type(u"20260430"_q);
    click(button);
    EXPECT_EQ(clicks, 1);
    box.clear();
    box.setFocus();
    pressTab();
    EXPECT_TRUE(next.hasFocus()) << "an empty box is no bad one";
}

TEST_F(MaskedBoxes, TwoBadBoxesDoNotQuarrel) {
    MaskedBox other(&form);
    other.setRefusal(refusal, prompts);
    other.setText(u"2026"_q);
    other.show();
    type(u"1"_q);
    prompts.expect(refusal);
    click(other);
    EXPECT_TRUE(box.hasFocus());
}

TEST_F(MaskedBoxes, LetGoOfWhoDoesNotLeaveForAField) {
    type(u"1"_q);
    click(cancel);
    EXPECT_TRUE(cancel.hasFocus());
    box.setFocus();
    next.setFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(next.hasFocus()) << "the program may move the focus";
    box.setFocus();
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_TRUE(box.hasFocus());
    box.setEnabled(false);
    QCoreApplication::processEvents();
    box.setEnabled(true);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    form.close();
    QCoreApplication::processEvents();
}

} // namespace kurbo::test
