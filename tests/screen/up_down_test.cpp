#include "screen/fields/fields.h"
#include "screen/fields/up_down.h"
#include "support/desk.h"

#include <QTest>
#include <QVBoxLayout>

namespace kurbo::test {

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

} // namespace kurbo::test
