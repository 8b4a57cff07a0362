#include "shell/frmWaiting.h"

#include "shell/wait_box.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace kurbo::test {
namespace {

TEST(FrmWaiting, AStepThatAsksIsStoppedByAClickOnTheBoxAlone) {
    frmWaiting window;
    QPushButton other;
    other.show();
    int pressed = 0;
    QObject::connect(&other, &QPushButton::pressed, &other, [&] { ++pressed; });
    const auto clickIsSeen = [&](QWidget* widget) {
        QTest::qSleep(120);
        const QPointF place(widget->rect().center());
        QCoreApplication::postEvent(widget, new QMouseEvent(QEvent::MouseButtonPress, place, widget->mapToGlobal(place),
                                                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        return window.stopped();
    };
    window.begin(QString(), 3);
    window.step(2);
    EXPECT_EQ(window.findChild<QProgressBar*>()->value(), 2);
    EXPECT_FALSE(window.stopped() || clickIsSeen(&other));
    EXPECT_EQ(pressed, 0);
    EXPECT_TRUE(clickIsSeen(&window));
    EXPECT_FALSE(window.isVisible());
}

// Whoever works behind the box would lose its ground.
TEST(FrmWaiting, NoOtherWindowClosesAndTheOwnCrossStops) {
    frmWaiting window;
    const QPointer<QWidget> other = new QWidget;
    other->setAttribute(Qt::WA_DeleteOnClose);
    other->show();
    window.begin(QString(), 3);
    const auto closed = [&](QWidget* widget) {
        QTest::qSleep(120);
        QCoreApplication::postEvent(widget->windowHandle(), new QCloseEvent);
        QMetaObject::invokeMethod(widget, &QWidget::close, Qt::QueuedConnection);
        return window.stopped();
    };
    EXPECT_FALSE(closed(other));
    EXPECT_TRUE(other && other->isVisible());
    EXPECT_TRUE(closed(&window));
    window.end();
    other->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(other);
}

TEST_F(SampleCompany, ALongWaitForTheDatabaseIsShownAndAShortOneIsNot) {
    WaitBox box;
    Connection waiting;
    box.watch(waiting);
    waiting.open(path, databasePassword());
    bool shown = false;
    const auto waitFor = [&](std::chrono::milliseconds time) {
        Connection busy;
        busy.open(path, databasePassword());
        busy.engine("BEGIN EXCLUSIVE");
        waiting.setTimeout(time);
        EXPECT_THROW((void)waiting.hasRow(u"SELECT * FROM C02_Section;"_q), Fault);
        shown = frmWaiting::isAnyUp();
        busy.engine("ROLLBACK");
    };
    waitFor(std::chrono::milliseconds(500));
    EXPECT_FALSE(shown);
    waitFor(std::chrono::milliseconds(1700));
    EXPECT_TRUE(shown);
    QTest::qWait(500);
    EXPECT_FALSE(frmWaiting::isAnyUp());
}

} // namespace
} // namespace kurbo::test
