#include "screen/fields/data_combo.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

namespace kurbo {
namespace {

const QList<CodeName> people{{QStringLiteral("1"), QStringLiteral("Sato")},
                             {QStringLiteral("2"), QStringLiteral("Suzuki")},
                             {QStringLiteral("3"), QStringLiteral("Sato")}};

TEST(DataCombo, GivesTheCodeOfTheShownNameOrTheTypedText) {
    DataCombo combo;
    combo.setEntries(people);
    EXPECT_EQ(combo.boundText(), QString());
    combo.setBoundText(QStringLiteral("2"));
    EXPECT_EQ(combo.currentText(), u"Suzuki");
    combo.setEditText(QStringLiteral("ADMIN"));
    EXPECT_EQ(combo.boundText(), u"ADMIN");
    EXPECT_FALSE(combo.isInList());
    combo.setBoundText(QStringLiteral("9"));
    EXPECT_EQ(combo.currentText(), u"9");
    combo.setCurrentIndex(2);
    EXPECT_EQ(combo.boundText(), u"3") << "of two people of one name";
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
    QTest::keyClicks(&combo, QStringLiteral("Su"));
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
} // namespace kurbo
