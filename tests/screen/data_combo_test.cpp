#include "screen/data_combo.h"

#include <gtest/gtest.h>

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
}

TEST(DataCombo, TellsPeopleOfOneNameApart) {
    DataCombo combo;
    combo.setEntries(people);
    combo.setCurrentIndex(2);
    EXPECT_EQ(combo.boundText(), u"3");
    combo.setEntries(people);
    EXPECT_EQ(combo.currentText(), u"Sato");
}

TEST(DataCombo, LeavesTheTextToThePerson) {
    DataCombo combo;
    combo.setEntries(people);
    combo.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&combo));
    combo.setFocus();
    QTest::keyClicks(&combo, QStringLiteral("Su"));
    EXPECT_EQ(combo.currentText(), u"Su");
    EXPECT_EQ(combo.completer()->completionCount(), 1);
    QTest::keyClick(&combo, Qt::Key_Return);
    EXPECT_EQ(combo.count(), 3) << "typed text was inserted";
    QWheelEvent turn({}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &turn);
    EXPECT_EQ(combo.currentText(), u"Su");
}

} // namespace
} // namespace kurbo
