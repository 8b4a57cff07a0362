#include "base/system/files.h"
#include "screen/windows/box_prompts.h"
#include "screen/windows/help.h"
#include "support/desk.h"

#include <QApplication>
#include <QDirIterator>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
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
          {Buttons::YesNo, Answer::Yes, Qt::Key_Escape, Answer::No},
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
    const Desk desk;
    const QString path = desk.file(u"card.krb"_q);
    const auto save = [&](const QString& name, const QList<Qt::Key>& answers = {Qt::Key_Return}) {
        typeFile(desk.file(name), answers);
        return BoxPrompts().saveFile(u"ﾀｲﾑｶｰﾄﾞﾌｧｲﾙ(*.krb)|*.krb"_q, u"krb"_q);
    };
    EXPECT_EQ(save(u"card"_q), path);
    for (const QString& name : {u"card.krb"_q, u"2.csv"_q}) {
        QFile file(desk.file(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(save(u"card"_q, {Qt::Key_N}), std::nullopt);
    EXPECT_EQ(save(u"card"_q, {Qt::Key_Return, Qt::Key_Y}), path);
    const QStringList both{path, desk.file(u"2.csv"_q)};
    typeFile(u'"' + both.join(u"\" \""_q) + u'"');
    EXPECT_EQ(BoxPrompts().openFiles(QString()), both);
}

const QString root = QStringLiteral(KURBO_ROOT);

QString readText(const QString& path) {
    return QString::fromUtf8(readFile(path));
}

QString helpFile(const QString& name) {
    return root + u"/data/help/"_q + name;
}

QStringList allOf(const QString& text, const QString& pattern) {
    QStringList found;
    for (const auto& match : QRegularExpression(pattern).globalMatch(text)) found.append(match.captured(1));
    return found;
}

QStringList placesIn(const QString& name) {
    return allOf(readText(helpFile(name)), u"name=\"([^\"]+)\""_q);
}

// The controls of each window in which people work, by the window's name.
QMap<QString, QStringList> windows() {
    QMap<QString, QStringList> all;
    QDirIterator files(root + u"/src"_q, {u"frm*.ui"_q}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString text = readText(files.next());
        all.insert(files.fileInfo().baseName(), allOf(text, u"name=\"(\\w+)\""_q));
    }
    for (const auto& passing : {u"frmSplash"_q, u"frmWaiting"_q, u"frmAbout"_q, u"frmHelp"_q}) all.remove(passing);
    return all;
}

TEST(HelpTexts, LeadSomewhere) {
    const QMap<QString, QStringList> known = windows();
    EXPECT_GT(known.size(), 15);
    for (const QString& form : known.keys())
        EXPECT_TRUE(placesIn(u"KurboAdm.hlp"_q).contains(form)) << form << " isn't told of";
    for (const QString& name : {u"Kurbo.hlp"_q, u"KurboAdm.hlp"_q}) {
        for (const QString& link : allOf(readText(helpFile(name)), u"href=\"([^\"]*)\""_q)) {
            const QString file = link.section(u'#', 0, 0);
            EXPECT_TRUE(placesIn(file.isEmpty() ? name : file).contains(link.section(u'#', 1))) << link;
        }
        for (const QString& place : placesIn(name).filter(u"."_q)) {
            const QString control = place.section(u'.', 1);
            const QStringList controls = known.value(place.section(u'.', 0, 0), {control});
            EXPECT_TRUE(controls.contains(control) || controls.contains(control + u"_0"_q) ||
                        controls.contains(control + u"_1"_q))
                << place;
        }
    }
}

TEST(HelpViewer, OpensAtTheActiveControlOrWhatHoldsIt) {
    Desk desk;
    QWidget window;
    window.setObjectName(u"frmKurbo"_q);
    window.show();
    for (const auto& [name, place] : {std::pair{u"mskStart"_q, u"frmKurbo.mskStart"_q},
                                      {u"optMonth_3"_q, u"frmKurbo.optMonth"_q},
                                      {u"nameless"_q, u"frmKurbo"_q}}) {
        QLineEdit control(&window);
        control.setObjectName(name);
        control.show();
        control.setFocus();
        openHelp(desk.prompts, helpFile(u"Kurbo.hlp"_q), window);
        auto* const viewer = window.findChild<QTextBrowser*>();
        ASSERT_TRUE(viewer);
        EXPECT_EQ(viewer->source().fragment(), place);
        delete viewer->window();
    }
    const QString missing = desk.file(u"Kurbo.hlp"_q);
    desk.prompts.expect(lines(u"ヘルプファイル"_q, missing, u"が見つかりません。"_q));
    openHelp(desk.prompts, missing, window);
}

} // namespace

} // namespace kurbo::test
