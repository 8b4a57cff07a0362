#include "screen/windows/box_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
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

// Types a name into the file dialog that comes up, as often as there are answers to the question that may come, and
// gives the dialog up in the end.
void typeFile(const QString& name, const QList<Qt::Key>& answers = {Qt::Key_Return}) {
    QTimer::singleShot(0, qApp, [name, answers] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        for (const Qt::Key key : answers) {
            QTimer::singleShot(0, dialog, [dialog, key] {
                QWidget* const box = QApplication::activeModalWidget();
                if (box != dialog) QTest::keyClick(box, key);
            });
            dialog->findChild<QLineEdit*>()->setText(name);
            static_cast<QDialog*>(dialog)->accept();
        }
        if (dialog->isVisible()) dialog->reject();
    });
}

TEST(BoxPrompts, SavingAppendsTheExtensionAndAsksBeforeItReplaces) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("card.krb"));
    const QString filter = QStringLiteral("ﾀｲﾑｶｰﾄﾞﾌｧｲﾙ(*.krb)|*.krb");
    const auto save = [&](const QString& name, const QList<Qt::Key>& answers = {Qt::Key_Return}) {
        typeFile(folder.filePath(name), answers);
        return BoxPrompts().saveFile(filter, QStringLiteral("krb"));
    };
    EXPECT_EQ(save(QStringLiteral("card")), path);
    EXPECT_EQ(save(QStringLiteral("card.txt")), folder.filePath(QStringLiteral("card.txt")));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(save(QStringLiteral("card"), {Qt::Key_N}), std::nullopt);
    EXPECT_EQ(save(QStringLiteral("card"), {Qt::Key_Return, Qt::Key_Y}), path);
}

TEST(BoxPrompts, OpensSeveralFilesThatAreThere) {
    const QTemporaryDir folder;
    QStringList paths;
    for (const char16_t* name : {u"1.csv", u"2.csv"}) {
        paths.append(folder.filePath(QString::fromUtf16(name)));
        QFile file(paths.last());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    typeFile(u'"' + paths.join(QStringLiteral("\" \"")) + u'"');
    EXPECT_EQ(BoxPrompts().openFiles(QString()), paths);
    typeFile(folder.filePath(QStringLiteral("3.csv")));
    EXPECT_EQ(BoxPrompts().openFile(QString()), std::nullopt);
}

} // namespace
} // namespace kurbo
