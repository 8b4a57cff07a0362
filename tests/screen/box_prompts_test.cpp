#include "screen/box_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace kurbo {
namespace {

// Presses a key in the box that comes up.
Answer answered(const Message& message, Qt::Key key) {
    QTimer::singleShot(0, qApp, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    return BoxPrompts().ask(message);
}

TEST(BoxPrompts, EnterGivesThePresetAndEscRefuses) {
    const QString text = QStringLiteral("変更を破棄しますか？");
    const Message risky{{}, text, Icon::Question, Buttons::YesNo, Answer::No};
    EXPECT_EQ(answered(risky, Qt::Key_Return), Answer::No);
    EXPECT_EQ(answered(risky, Qt::Key_Y), Answer::Yes);
    const Message likely{{}, text, Icon::Question, Buttons::YesNo, Answer::Yes};
    EXPECT_EQ(answered(likely, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answered(likely, Qt::Key_Escape), Answer::No);
    const Message update{{}, text, Icon::Question, Buttons::OkCancel, Answer::Ok};
    EXPECT_EQ(answered(update, Qt::Key_Return), Answer::Ok);
    EXPECT_EQ(answered(update, Qt::Key_Escape), Answer::Cancel);
    EXPECT_EQ(answered({{}, text}, Qt::Key_Escape), Answer::Ok);
}

TEST(BoxPrompts, ShowsTheNormalPointerAndEveryLine) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QString shown;
    Qt::CursorShape pointer = Qt::WaitCursor;
    QTimer::singleShot(0, qApp, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        shown = box->text();
        pointer = QApplication::overrideCursor()->shape();
        box->close();
    });
    BoxPrompts().ask({{}, QStringLiteral("一\r\n<b>二</b>")});
    EXPECT_EQ(shown, u"一\n<b>二</b>");
    EXPECT_EQ(pointer, Qt::ArrowCursor);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

TEST(BoxPrompts, FiltersAreThoseOfTheToolkit) {
    EXPECT_EQ(nameFilters(QStringLiteral("DBﾌｧｲﾙ(*.mdb)|*.mdb")), QStringList{QStringLiteral("DBﾌｧｲﾙ(*.mdb)")});
    EXPECT_EQ(nameFilters(QString()), QStringList{QStringLiteral("全てのﾌｧｲﾙ(*)")});
    EXPECT_EQ(nameFilters(QStringLiteral("表|*.csv;*.txt")), QStringList{QStringLiteral("表(*.csv *.txt)")});
}

} // namespace
} // namespace kurbo
