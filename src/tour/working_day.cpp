#include "tour/working_day.h"

#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/outings/frmGoOut.h"
#include "paper/frmPreview.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/data_list.h"
#include "screen/fields/masked_box.h"
#include "screen/grid/grid.h"
#include "screen/windows/frmAbout.h"
#include "screen/windows/frmHelp.h"
#include "settings/calendar/frmHoliday.h"
#include "shell/frmParm.h"
#include "shell/frmSplash.h"
#include "shell/frmWaiting.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace kurbo {
namespace {

void settle() {
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
}

void press(QWidget* control, int key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(control, &event);
    }
    settle();
}

void type(QWidget* control, const QString& text) {
    for (const QChar c : text) press(control, 0, QString(c));
}

// The window of a kind, if one is there.
template <typename Form>
Form* onScreen() {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (auto* const form = qobject_cast<Form*>(window); form && form->isVisible()) return form;
    return nullptr;
}

} // namespace

void WorkingDay::play() {
    start();
    morning();
    mistakes();
    nightShiftEnds();
    card();
    totals();
    administrator();
    otherWindows();
    end();
}

QWidget* WorkingDay::control(const char* name) const {
    return window_.findChild<QWidget*>(QString::fromLatin1(name));
}

void WorkingDay::start() {
    frmSplash splash(QStringLiteral("起動中です･･･"));
    splash.show();
    camera_.shoot(splash, QStringLiteral("起動"));
    splash.close();
    window_.load();
    window_.show();
    window_.activateWindow();
    window_.greet();
    shoot(QStringLiteral("ログイン前"));
}

void WorkingDay::logIn(const QString& section, const QString& staff, const QString& password) {
    window_.activateWindow();
    settle();
    const auto choose = [this](const char* name, const QString& text) {
        QWidget* const combo = control(name);
        combo->setFocus();
        settle();
        qobject_cast<QComboBox*>(combo)->setEditText(text);
        settle();
    };
    choose("dcbSection", section);
    choose("dcbStaff", staff);
    QWidget* const word = control("txtPassWord");
    word->setFocus();
    settle();
    qobject_cast<QLineEdit*>(word)->selectAll();
    type(word, password);
    press(word, Qt::Key_Return);
}

void WorkingDay::morning() {
    logIn(QStringLiteral("総務部"), QStringLiteral("森　拓也"), QStringLiteral("kurbo1003"));
    shoot(QStringLiteral("打刻画面"));
    press(control("cmdEnter"), Qt::Key_Space);
    shoot(QStringLiteral("出社の後"));
    logIn(QStringLiteral("総務部"), QStringLiteral("森　拓也"), QStringLiteral("kurbo1003"));
    press(control("cmdEnter"), Qt::Key_Space);
}

void WorkingDay::mistakes() {
    logIn(QStringLiteral("営業部"), QStringLiteral("前田　裕二"), QStringLiteral("wrong"));
    logIn(QStringLiteral("総務部"), QStringLiteral("伊藤　由美子"), QStringLiteral("kurbo1004"));
    window_.activateWindow();
    control("dcbSection")->setFocus();
    settle();
    qobject_cast<QComboBox*>(control("dcbSection"))->setEditText(QStringLiteral("どこか"));
    control("txtPassWord")->setFocus();
    settle();
    qobject_cast<QComboBox*>(control("dcbSection"))->setEditText({});
}

void WorkingDay::nightShiftEnds() {
    logIn(QStringLiteral("製造部"), QStringLiteral("池田　拓也"), QStringLiteral("kurbo1010"));
    prompts_.answerNext(Answer::Yes);
    press(control("cmdLeave"), Qt::Key_Space);
    clock_.set(clock_.now() + std::chrono::hours(9));
    logIn(QStringLiteral("営業部"), QStringLiteral("前田　裕二"), QStringLiteral("kurbo1006"));
    press(control("cmdLeave"), Qt::Key_Space);
}

void WorkingDay::print(const QWidget& form, const QString& title) {
    form.findChild<QPushButton*>(QStringLiteral("cmdPrint"))->click();
    settle();
    auto* const preview = form.findChild<frmPreview*>();
    if (!preview) return;
    camera_.shoot(*preview, title);
    preview->findChild<QPushButton*>(QStringLiteral("cmdPdf"))->click();
    preview->close();
    settle();
}

// The superior sees the own month and corrects a day of somebody else's.
void WorkingDay::card() {
    logIn(QStringLiteral("総務部"), QStringLiteral("和田　学"), QStringLiteral("kurbo1001"));
    press(control("cmdKurbo"), Qt::Key_Space);
    QWidget* const form = screen(Screen::Kurbo);
    if (!form) return;
    form->resize(1360, 700);
    camera_.shoot(*form, QStringLiteral("タイムカード"));
    auto* const names = form->findChild<DataCombo*>(QStringLiteral("dcbStaff"));
    names->setBoundText(QStringLiteral("1003"));
    Q_EMIT names->activated(names->currentIndex());
    settle();
    auto* const grid = form->findChild<Grid*>(QStringLiteral("vfgKurbo"));
    grid->setFocus();
    grid->Select(firstCardDay, static_cast<int>(CardColumn::Plan));
    press(grid, Qt::Key_F2);
    type(QApplication::focusWidget(), QStringLiteral("大阪へ出張"));
    camera_.shoot(*form, QStringLiteral("セルの入力"));
    press(QApplication::focusWidget(), Qt::Key_Return);
    form->findChild<QPushButton*>(QStringLiteral("cmdUpdate"))->click();
    settle();
    camera_.shoot(*form, QStringLiteral("更新の後"));
    form->findChild<QRadioButton*>(QStringLiteral("optMonth_5"))->click();
    settle();
    camera_.shoot(*form, QStringLiteral("保存した月"));
    form->findChild<QAction*>(QStringLiteral("mnuDetail"))->trigger();
    settle();
    if (auto* const outings = onScreen<frmGoOut>()) {
        camera_.shoot(*outings, QStringLiteral("外出明細"));
        print(*outings, QStringLiteral("外出明細の印刷"));
    }
    print(*form, QStringLiteral("タイムカードの印刷"));
    form->close();
    settle();
}

// The clerk looks at the section's last months.
void WorkingDay::totals() {
    logIn(QStringLiteral("総務部"), QStringLiteral("青木　美穂"), QStringLiteral("kurbo1002"));
    press(control("cmdTotal"), Qt::Key_Space);
    QWidget* const form = screen(Screen::Total);
    if (!form) return;
    form->resize(1360, 700);
    form->findChild<MaskedBox*>(QStringLiteral("mskStart"))->setText(QStringLiteral("2026/03"));
    form->findChild<QPushButton*>(QStringLiteral("cmdDisplay"))->click();
    settle();
    camera_.shoot(*form, QStringLiteral("月次集計 社員別"));
    form->findChild<QRadioButton*>(QStringLiteral("optMethod_1"))->click();
    settle();
    camera_.shoot(*form, QStringLiteral("月次集計 年月別"));
    print(*form, QStringLiteral("月次集計の印刷"));
    form->close();
    settle();
}

void WorkingDay::administrator() {
    logIn({}, QStringLiteral("admin"), QStringLiteral("admin"));
    shoot(QStringLiteral("管理者"));
    for (const char* name : {"mnuFile", "mnuAsign", "mnuMaintainance", "mnuHelp"}) {
        auto* const menu = window_.findChild<QMenu*>(QString::fromLatin1(name));
        menu->popup(window_.mapToGlobal(QPoint(0, 0)));
        camera_.shoot(*menu, QStringLiteral("メニュー ") + menu->title().section(u'(', 0, 0));
        menu->close();
    }
    for (const auto& [menu, form] : {std::pair{"mnuCorp", Screen::Corp},
                                     {"mnuSection", Screen::Section},
                                     {"mnuStaff", Screen::Staff},
                                     {"mnuWorkStyle", Screen::WorkStyle},
                                     {"mnuWorkTime", Screen::WorkTime},
                                     {"mnuAccess", Screen::Access},
                                     {"mnuUser", Screen::Asign},
                                     {"mnuPassword", Screen::Password},
                                     {"mnuMove", Screen::Maintainance},
                                     {"mnuDeleteDestAdmin", Screen::DeleteDest}})
        showSetting(menu, form);
    calendar();
    window_.findChild<QAction*>(QStringLiteral("mnuTopic"))->trigger();
    settle();
    if (auto* const help = onScreen<frmHelp>()) {
        camera_.shoot(*help, QStringLiteral("ヘルプ"));
        help->close();
    }
}

// In a list, the first record behind the one that stands for a new one.
void WorkingDay::showSetting(const char* menu, Screen setting) {
    window_.findChild<QAction*>(QString::fromLatin1(menu))->trigger();
    settle();
    QWidget* const form = screen(setting);
    if (!form) return;
    for (DataList* const list : form->findChildren<DataList*>())
        if (list->isVisible()) press(list, Qt::Key_Down);
    camera_.shoot(*form, form->windowTitle().section(u'－', 1));
    form->close();
    settle();
}

// Every Sunday becomes a day off.
void WorkingDay::calendar() {
    window_.findChild<QAction*>(QStringLiteral("mnuCalendar"))->trigger();
    settle();
    QWidget* const form = screen(Screen::Calendar);
    if (!form) return;
    form->findChild<QAction*>(QStringLiteral("mnuHoliday"))->trigger();
    settle();
    if (auto* const rules = onScreen<frmHoliday>()) {
        GridModel& cells = *rules->findChild<Grid*>(QStringLiteral("vfgHoliday"))->grid();
        int column = 0;
        for (const char16_t* text : {u"毎週", u"日曜日", u"", u"", u"定休日", u"全日"})
            cells.edit(1, ++column, QString::fromUtf16(text));
        camera_.shoot(*rules, QStringLiteral("休日設定"));
        rules->findChild<QPushButton*>(QStringLiteral("cmdWrite"))->click();
        settle();
    }
    camera_.shoot(*form, QStringLiteral("カレンダー設定"));
    form->findChild<QPushButton*>(QStringLiteral("cmdUpdate"))->click();
    settle();
    form->close();
    settle();
}

void WorkingDay::otherWindows() {
    frmParm parm(client_, &window_);
    parm.show();
    camera_.shoot(parm, QStringLiteral("データベース指定"));
    parm.findChild<QWidget*>(QStringLiteral("cmdCancel"))->setFocus();
    press(parm.findChild<QWidget*>(QStringLiteral("cmdCancel")), Qt::Key_Space);
    frmAbout about(client_.helpPath(), &window_);
    about.show();
    camera_.shoot(about, QStringLiteral("バージョン情報"));
    about.close();
    frmWaiting waiting;
    waiting.begin({}, 100);
    waiting.step(40);
    camera_.shoot(waiting, QStringLiteral("処理中"));
    waiting.end();
}

void WorkingDay::end() {
    window_.close();
    settle();
}

} // namespace kurbo
