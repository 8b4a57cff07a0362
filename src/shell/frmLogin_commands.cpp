#include "screen/windows/frmAbout.h"
#include "screen/windows/help.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/open_forms.h"
#include "settings/settings_form.h"
#include "shell/frmLogin.h"
#include "shell/frmParm.h"
#include "shell/screens.h"
#include "ui_frmLogin.h"

namespace kurbo {

void frmLogin::connectButtons() {
    connect(ui_->cmdLogin, &QPushButton::clicked, this, &frmLogin::logIn);
    connect(ui_->cmdLogoff, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdEnter, &QPushButton::clicked, this, [this] { press(Punch::Enter); });
    connect(ui_->cmdOut, &QPushButton::clicked, this, [this] { press(Punch::Out); });
    connect(ui_->cmdIn, &QPushButton::clicked, this, [this] { press(Punch::In); });
    connect(ui_->cmdLeave, &QPushButton::clicked, this, [this] { press(Punch::Leave); });
    connect(ui_->cmdKurbo, &QPushButton::clicked, this, [this] { openCard(QStringLiteral("frmKurbo")); });
    connect(ui_->cmdTotal, &QPushButton::clicked, this, [this] { openCard(QStringLiteral("frmTotal")); });
    wireEscape(*this);
}

void frmLogin::connectMenus() {
    connect(ui_->mnuDB, &QAction::triggered, this, &frmLogin::openParm);
    connect(ui_->mnuPassword, &QAction::triggered, this, [this] { openScreen(QStringLiteral("frmPassword")); });
    for (const QAction* action : {ui_->mnuDeleteDest, ui_->mnuDeleteDestAdmin})
        connect(action, &QAction::triggered, this, [this] { openScreen(QStringLiteral("frmDeleteDest")); });
    connect(ui_->mnuLogOff, &QAction::triggered, this, &QWidget::close);
    connectSetting(ui_->mnuCorp, Setting::Corp, u"frmCorp");
    connectSetting(ui_->mnuSection, Setting::Section, u"frmSection");
    connectSetting(ui_->mnuStaff, Setting::Staff, u"frmStaff");
    connectSetting(ui_->mnuWorkStyle, Setting::WorkStyle, u"frmWorkStyle");
    connectSetting(ui_->mnuWorkTime, Setting::WorkTime, u"frmWorkTime");
    connectSetting(ui_->mnuAccess, Setting::Access, u"frmAccess");
    connectSetting(ui_->mnuUser, Setting::User, u"frmAsign");
    connectSetting(ui_->mnuCalendar, Setting::Calendar, u"frmCalendar");
    connect(ui_->mnuMove, &QAction::triggered, this, &frmLogin::openMove);
    connect(ui_->mnuTopic, &QAction::triggered, this, &frmLogin::showTopics);
    connect(ui_->mnuVersion, &QAction::triggered, this, &frmLogin::showVersion);
}

void frmLogin::connectSetting(QAction* action, Setting setting, const char16_t* screen) {
    const QString name = QString::fromUtf16(screen);
    connect(action, &QAction::triggered, this, [this, setting, name] { openSetting(setting, name); });
}

void frmLogin::openCard(const QString& screen) {
    if (!ReConnect() || activateForm(screen)) return;
    // The card and the totals go to other sites' files, under the rights of what they show: one of them at a time.
    if (!closeScreens()) return;
    if (cardAllowed(client_.context, client_.HomeConnection)) openScreen(screen);
}

void frmLogin::openSetting(Setting setting, const QString& screen) {
    if (!ReConnect()) return;
    if (settingAllowed(client_.context, client_.HomeConnection, setting)) openScreen(screen);
}

void frmLogin::openMove() {
    const QString screen = QStringLiteral("frmMaintainance");
    if (!ReConnect() || activateForm(screen)) return;
    if (!moveAllowed(client_.context, client_.HomeConnection)) return;
    // An open card knows its rows by numbers that will belong to others.
    if (closeScreens()) openScreen(screen);
}

void frmLogin::openScreen(const QString& screen) {
    if (!ReConnect() || activateForm(screen)) return;
    tmrTimer_->stop();
    {
        const Hourglass hourglass;
        showScreen(*makeScreen(client_, screen));
    }
    tmrTimer_->start();
}

// What a settings screen has changed shows in the lists of sections and names.
void frmLogin::showScreen(QMainWindow& form) {
    if (auto* const settings = qobject_cast<SettingsForm*>(&form))
        connect(settings, &SettingsForm::closed, this, [this] {
            listsOpen_ = false;
            (void)ReConnect();
        });
    form.show();
}

// What an open screen shows would go to the other file with its next update.
void frmLogin::openParm() {
    if (!ReConnect() || !closeScreens()) return;
    tmrTimer_->stop();
    frmParm form(client_, this);
    bool chosen = false;
    connect(&form, &frmParm::databaseChosen, this, [&chosen] { chosen = true; });
    form.exec();
    if (chosen) databaseChanged();
    (void)ReConnect();
}

void frmLogin::showVersion() {
    if (!ReConnect()) return;
    frmAbout(client_.helpPath(), this).exec();
    (void)ReConnect();
}

void frmLogin::showTopics() {
    if (ReConnect()) openHelp(client_.context.prompts, client_.helpPath(), *this);
}

} // namespace kurbo
