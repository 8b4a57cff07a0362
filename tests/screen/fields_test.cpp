#include "screen/fields/fields.h"

#include "screen/fields/data_combo.h"
#include "screen/fields/up_down.h"
#include "support/desk.h"

#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace kurbo::test {
namespace {

TEST(UpDown, ButtonsAndKeysOfTheFieldAreOne) {
    QWidget form;
    QLineEdit field;
    UpDown udc;
    auto* const column = new QVBoxLayout(&form);
    column->addWidget(&field);
    column->addWidget(&udc);
    int value = 0;
    QObject::connect(&udc, &UpDown::UpClick, &form, [&] { ++value; });
    QObject::connect(&udc, &UpDown::DownClick, &form, [&] { --value; });
    udc.setBuddy(&field);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    field.setFocus();

    const auto buttons = udc.findChildren<QToolButton*>();
    ASSERT_EQ(buttons.size(), 2);
    QTest::mouseClick(buttons[0], Qt::LeftButton);
    QTest::mouseClick(buttons[0], Qt::LeftButton);
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_EQ(value, 1);
    EXPECT_TRUE(field.hasFocus());
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(value, 2);
    QTest::keyClick(&field, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Left);
    EXPECT_EQ(value, 2);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(value, 1);

    QKeyEvent held(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&field, &held);
    EXPECT_EQ(value, 1);
    udc.setRepeats(true);
    QCoreApplication::sendEvent(&field, &held);
    EXPECT_EQ(value, 2);
    udc.setEnabled(false);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(value, 2);
}

TEST(Fields, PrefecturesWithAndWithoutTheWholeCountry) {
    QComboBox list;
    FillPrefectures(list, true);
    FillPrefectures(list, true);
    EXPECT_EQ(list.count(), 48);
    EXPECT_EQ(list.itemText(0), u"全国"_q);
    EXPECT_EQ(list.itemData(13), 13);
    FillPrefectures(list, false);
    EXPECT_EQ(list.count(), 47);
    EXPECT_EQ(list.itemText(0), u"北海道"_q);
}

const QList<CodeName> people{{u"1"_q, u"Sato"_q}, {u"2"_q, u"Suzuki"_q}, {u"3"_q, u"Sato"_q}};

TEST(DataCombo, GivesTheCodeOfTheShownNameOrTheTypedText) {
    DataCombo combo;
    combo.setEntries(people);
    EXPECT_EQ(combo.boundText(), QString());
    combo.setBoundText(u"2"_q);
    EXPECT_EQ(combo.currentText(), u"Suzuki");
    combo.setEditText(u"ADMIN"_q);
    EXPECT_EQ(combo.boundText(), u"ADMIN");
    EXPECT_FALSE(combo.isInList());
    combo.setBoundText(u"9"_q);
    EXPECT_EQ(combo.currentText(), u"9");
}

TEST(DataCombo, TellsPeopleOfOneNameApart) {
    DataCombo combo;
    combo.setEntries(people);
    combo.setCurrentIndex(2);
    EXPECT_EQ(combo.boundText(), u"3");
    combo.setEntries(people);
    EXPECT_EQ(combo.currentText(), u"Sato");
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
    EXPECT_EQ(combo.currentText(), u"Su");
    EXPECT_EQ(combo.completer()->completionCount(), 1);
    QWidget* const list = QApplication::activePopupWidget();
    QTest::mouseClick(list, Qt::LeftButton, {}, list->mapFromGlobal(next.mapToGlobal(QPoint(5, 5))));
    EXPECT_TRUE(next.hasFocus()) << "the click went into closing the list";
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Return);
    EXPECT_EQ(combo.count(), 3) << "typed text was inserted";
    QWheelEvent turn({}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &turn);
    EXPECT_EQ(combo.currentText(), u"Su");
}

} // namespace
} // namespace kurbo::test
