#include "shell/login/frmLogin.h"

#include "base/product.h"
#include "screen/windows/frmAbout.h"
#include "screen/windows/help.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/window_manners.h"
#include "session/setup_order.h"
#include "session/shutdown.h"
#include "shell/frmSplash.h"
#include "shell/frmWaiting.h"
#include "ui_frmLogin.h"

#include <QCloseEvent>

namespace kurbo {
namespace {

// While a box or the wait window is up, the timers' work waits.
bool isOccupied() {
    return isBoxUp() || frmWaiting::isAnyUp();
}

} // namespace

frmLogin::frmLogin(Client& client)
    : ui_(std::make_unique<Ui::frmLogin>()),
      client_(client),
      login_(client),
      screens_(client, *this),
      // A screen that is open works on the connection.
      hold_(
          client, [this] { return isOccupied() || screens_.isAnyOpen(); }, this),
      place_(*this) {
    ui_->setupUi(this);
    ui_->menus->setNativeMenuBar(false);
    setWindowTitle(productName() + QStringLiteral("－ログイン"));
    clock_ = new DayClock(client_, {ui_->txtClock, ui_->lblHoliday}, &isOccupied, [this] { return ReConnect(); });
    connectFields();
    connectPunches();
    connectScreens();
    connectMenus();
    HideTimeRecorder();
    ui_->txtClock->setFocus();
    place_.placeFor(ui_->fraRecorder->sizeHint().height());
}

frmLogin::~frmLogin() = default;

void frmLogin::connectFields() {
    fields_ = std::make_unique<LoginFields>(
        client_, LoginControls{ui_->dcbSection, ui_->dcbStaff, ui_->txtPassWord, ui_->cmdLogin, ui_->menus});
    connect(fields_.get(), &LoginFields::entered, this, &frmLogin::enterFields);
    connect(&hold_, &DatabaseHold::letGo, this, &frmLogin::leaveDatabase);
    connect(ui_->cmdLogin, &QPushButton::clicked, this, &frmLogin::logIn);
    connect(ui_->cmdLogoff, &QPushButton::clicked, this, &QWidget::close);
}

void frmLogin::connectPunches() {
    for (const auto& [button, kind] : {std::pair{ui_->cmdEnter, Punch::Enter},
                                       {ui_->cmdOut, Punch::Out},
                                       {ui_->cmdIn, Punch::In},
                                       {ui_->cmdLeave, Punch::Leave}}) {
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, punch = kind] { press(punch); });
    }
}

// The Enter key of the password, held a little too long, must not punch.
bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) return true;
    return QMainWindow::eventFilter(watched, event);
}

void frmLogin::connectScreens() {
    commands_ = std::make_unique<ScreenCommands>(*this, screens_);
    commands_->onGiven(*this, [this](Screen screen) {
        if (ReConnect()) screens_.open(screen);
    });
    connect(&screens_, &Screens::settingsClosed, this, [this] {
        fields_->outdate();
        (void)ReConnect();
    });
    connect(&screens_, &Screens::databaseChosen, this, &frmLogin::changeDatabase);
}

void frmLogin::connectMenus() {
    wireEscape(*this);
    connect(ui_->mnuLogOff, &QAction::triggered, this, &QWidget::close);
    connect(ui_->mnuTopic, &QAction::triggered, this, [this] {
        if (ReConnect()) openHelp(client_.context.prompts, client_.helpPath(), *this);
    });
    connect(ui_->mnuVersion, &QAction::triggered, this, [this] {
        if (!ReConnect()) return;
        frmAbout(client_.helpPath(), this).exec();
        (void)ReConnect();
    });
}

void frmLogin::load() {
    const bool loaded = guarded(client_.context, u"frmLogin", u"Form_Load", false, [this] {
        client_.openHome();
        fields_->readLists();
        return true;
    });
    if (loaded) return;
    client_.closeConnections();
    hold_.end();
}

void frmLogin::greet() {
    if (hold_.isOver()) return;
    clock_->tick();
    warnOfOldRecords(client_.context, client_.HomeConnection);
    greetNewSite(client_.context, client_.HomeConnection);
}

bool frmLogin::ReConnect() {
    return hold_.take([this](bool reopened) {
        if (reopened) fields_->outdate();
        fields_->refreshLists();
    });
}

// Nobody is here; the session goes on.
void frmLogin::leaveDatabase() {
    if (!isMinimized()) fields_->moveFocus(ui_->txtClock);
    fields_->outdate();
}

void frmLogin::changeDatabase() {
    fields_->beginAnew();
    (void)endSession();
}

bool frmLogin::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) leftForBox_ = isBoxUp();
    // Coming back from a message box is no new beginning: a failed connection would be reported without end.
    if (event->type() == QEvent::WindowActivate && !leftForBox_ && !isBoxUp() && !screens_.isAnyOpen())
        QMetaObject::invokeMethod(this, &frmLogin::comeBack, Qt::QueuedConnection);
    return QMainWindow::event(event);
}

// Whom an open screen has kept from being thrown out goes now.
void frmLogin::comeBack() {
    if (login_.isThrown())
        close();
    else
        (void)ReConnect();
}

void frmLogin::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (ending_) return;
    if (screens_.isAnyOpen()) {
        client_.context.prompts.exclaim(QStringLiteral("他のメニューが開いているので、全て閉じてから終了して下さい。"));
        return;
    }
    ending_ = true;
    clock_->stop();
    hold_.end();
    {
        const Hourglass hourglass;
        frmSplash splash(QStringLiteral("終了処理中です･･･"));
        splash.showAtOnce();
        shutDown(client_);
    }
    event->accept();
    Q_EMIT ended();
}

void frmLogin::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (isMinimized()) return;
    place_.centreAcross();
    if (event->spontaneous()) ui_->txtClock->setFocus();
}

void frmLogin::logIn() {
    if (isLoggedIn() || fields_->isRefusing()) return;
    // Somebody may have left the lists since they were read.
    fields_->outdate();
    if (!ReConnect()) return;
    switch (login_.attempt(fields_->credentials())) {
    case LoginResult::Open:
        return ShowTimeRecorder();
    case LoginResult::Thrown:
        close();
        return;
    case LoginResult::Refused:
        return fields_->enterPassword();
    case LoginResult::Stopped:
        return fields_->backToRefused();
    }
}

// A screen may ask: the click that moved the focus is let to its end first.
void frmLogin::enterFields() {
    if (!ReConnect() || !isLoggedIn()) return;
    const auto how = screens_.isAnyOpen() ? Qt::QueuedConnection : Qt::DirectConnection;
    QMetaObject::invokeMethod(this, &frmLogin::beginAnew, how);
}

// Whoever touches a login field ends the session of the one before.
void frmLogin::beginAnew() {
    const bool admin = isAdminCode(client_.session.SessionStaff);
    if (!endSession())
        fields_->moveFocus(ui_->txtClock);
    else if (admin)
        fields_->clearNames();
}

// Every end of a session: its screens close with it, and who keeps one keeps the session. False when it goes on.
bool frmLogin::endSession() {
    if (!screens_.closeAll()) return false;
    client_.session = {};
    HideTimeRecorder();
    fields_->clearPassword();
    return true;
}

bool frmLogin::isLoggedIn() const {
    return !ui_->fraRecorder->isHidden();
}

void frmLogin::ShowTimeRecorder() {
    const Session& session = client_.session;
    const bool punches = session.access.CanPunch;
    ui_->lblTimeDiff->setVisible(session.EnterDelay != Seconds{} || session.LeaveGain != Seconds{});
    ui_->lblPrompt->setText(QStringLiteral("ｱﾌﾟﾘｹｰｼｮﾝ終了時はﾛｸﾞｵﾌﾎﾞﾀﾝをｸﾘｯｸして下さい。"));
    for (QWidget* button : {ui_->cmdEnter, ui_->cmdOut, ui_->cmdIn, ui_->cmdLeave}) button->setEnabled(punches);
    enableCommands(true);
    showRecorder(true);
    QWidget* const next = punches ? static_cast<QWidget*>(ui_->cmdEnter) : ui_->txtClock;
    next->setFocus();
}

void frmLogin::HideTimeRecorder() {
    if (ui_->fraRecorder->isAncestorOf(focusWidget())) ui_->txtClock->setFocus();
    ui_->lblPrompt->setText(QStringLiteral("所属･氏名･ﾊﾟｽﾜｰﾄﾞを入力し、ﾛｸﾞｲﾝして下さい。"));
    for (QWidget* button : {ui_->cmdEnter, ui_->cmdOut, ui_->cmdIn, ui_->cmdLeave}) button->setEnabled(false);
    enableCommands(false);
    showRecorder(false);
}

// The administrator has an entry for the destinations in the menu that nobody else sees.
void frmLogin::enableCommands(bool loggedIn) {
    const bool admin = loggedIn && client_.session.access.IsAdmin;
    commands_->enable(loggedIn);
    if (admin) ui_->mnuDeleteDest->setEnabled(false);
    ui_->mnuAsign->menuAction()->setVisible(admin);
    ui_->mnuMaintainance->menuAction()->setVisible(admin);
}

void frmLogin::showRecorder(bool shown) {
    if (isLoggedIn()) place_.keepHeight();
    ui_->fraRecorder->setVisible(shown);
    for (QLayout* inner : {static_cast<QLayout*>(ui_->bodyLayout), static_cast<QLayout*>(ui_->pageLayout), layout()})
        inner->activate();
    if (shown)
        place_.becomeHigh();
    else
        place_.becomeLow();
}

// The time of the press counts, however long the database is waited for.
void frmLogin::press(Punch kind) {
    const Context& context = client_.context;
    const FixedClock atPress(context.clock.now());
    if (!ReConnect()) return;
    // Whoever touches a login field while the database is waited for ends the session only.
    const Session session = client_.session;
    const PunchResult result =
        punch({context.prompts, atPress, context.paths, context.progress}, client_.HomeConnection, session, kind);
    if (result != PunchResult::Stopped && endSession()) fields_->enterStaff();
}

} // namespace kurbo
