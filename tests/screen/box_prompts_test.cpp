#include "screen/windows/box_prompts.h"
#include "support/desk.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace kurbo::test {
namespace {

// Presses a key in the box that comes up.
Answer answered(Buttons buttons, Answer preset, Qt::Key key) {
    QTimer::singleShot(0, qApp, [key] {
        EXPECT_EQ(qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->text(), u"一\n<b>二</b>");
        QTest::keyClick(QApplication::activeModalWidget(), key);
    });
    return BoxPrompts().ask({{}, u"一\r\n<b>二</b>"_q, Icon::Question, buttons, preset});
}

TEST(BoxPrompts, EnterGivesThePresetAndEscRefuses) {
    for (const auto& [buttons, preset, key, answer] :
         {std::tuple{Buttons::YesNo, Answer::No, Qt::Key_Return, Answer::No},
          {Buttons::YesNo, Answer::No, Qt::Key_Y, Answer::Yes},
          {Buttons::YesNo, Answer::Yes, Qt::Key_Return, Answer::Yes},
          {Buttons::YesNo, Answer::Yes, Qt::Key_Escape, Answer::No},
          {Buttons::OkCancel, Answer::Ok, Qt::Key_Return, Answer::Ok},
          {Buttons::OkCancel, Answer::Ok, Qt::Key_Escape, Answer::Cancel},
          {Message().buttons, Answer::Ok, Qt::Key_Escape, Answer::Ok}})
        EXPECT_EQ(answered(buttons, preset, key), answer) << key;
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

TEST(BoxPrompts, FilesAreChosenByTheirNames) {
    EXPECT_EQ(nameFilters(u"表|*.csv;*.txt"_q), QStringList{u"表(*.csv *.txt)"_q});
    EXPECT_EQ(nameFilters(QString()), QStringList{u"全てのﾌｧｲﾙ(*)"_q});
    const Desk desk;
    const QString path = desk.file(u"card.krb"_q);
    const auto save = [&](const QString& name, const QList<Qt::Key>& answers = {Qt::Key_Return}) {
        typeFile(desk.file(name), answers);
        return BoxPrompts().saveFile(u"ﾀｲﾑｶｰﾄﾞﾌｧｲﾙ(*.krb)|*.krb"_q, u"krb"_q);
    };
    EXPECT_EQ(save(u"card"_q), path);
    EXPECT_EQ(save(u"card.txt"_q), desk.file(u"card.txt"_q));
    for (const QString& name : {u"card.krb"_q, u"2.csv"_q}) {
        QFile file(desk.file(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(save(u"card"_q, {Qt::Key_N}), std::nullopt);
    EXPECT_EQ(save(u"card"_q, {Qt::Key_Return, Qt::Key_Y}), path);
    const QStringList both{path, desk.file(u"2.csv"_q)};
    typeFile(u'"' + both.join(u"\" \""_q) + u'"');
    EXPECT_EQ(BoxPrompts().openFiles(QString()), both);
    typeFile(desk.file(u"3.csv"_q));
    EXPECT_EQ(BoxPrompts().openFile(QString()), std::nullopt);
}

} // namespace
} // namespace kurbo::test
