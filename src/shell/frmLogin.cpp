#include "shell/frmLogin.h"

#include "base/product.h"
#include "screen/fields/fields.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/open_forms.h"
#include "session/shutdown.h"
#include "shell/frmSplash.h"
#include "store/readers.h"
#include "ui_frmLogin.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>

namespace kurbo {
namespace {

QColor colourOf(Day day) {
    const std::chrono::weekday weekday{day};
    if (weekday == std::chrono::Saturday) return {0, 0, 255};
    if (weekday == std::chrono::Sunday) return {255, 0, 0};
    return Qt::black;
}

// While a box or frmWaiting is up, the timers' work waits.
bool isOccupied() {
    return isBoxUp() || IsFormLoaded(QStringLiteral("frmWaiting"));
}

// What was chosen stays chosen while the list has it; a text that is in no list stays as it was typed.
void refill(DataCombo& list, const QList<CodeName>& entries) {
    const QString code = list.boundText();
    const bool wasChosen = list.isInList();
    list.setEntries(entries);
    list.setBoundText(code);
    if (wasChosen && !list.isInList()) list.clearEditText();
}

} // namespace

frmLogin::frmLogin(Client& client) : ui_(std::make_unique<Ui::frmLogin>()), client_(client), login_(client) {
    ui_->setupUi(this);
    ui_->menus->setNativeMenuBar(false);
    setWindowTitle(productName() + QStringLiteral("－ログイン"));
    makeTimers();
    connectFields();
    connectButtons();
    connectMenus();
    HideTimeRecorder();
    showTime(client_.context.clock.now());
    ui_->txtClock->setFocus();
    placeForBothForms();
}

// The focus moves once more while the controls go.
frmLogin::~frmLogin() {
    disconnect(qApp, nullptr, this, nullptr);
}

void frmLogin::makeTimers() {
    tmrClock_ = new QTimer(this);
    tmrClock_->setObjectName(QStringLiteral("tmrClock"));
    tmrClock_->setTimerType(Qt::PreciseTimer);
    tmrClock_->setInterval(std::chrono::milliseconds(1000));
    connect(tmrClock_, &QTimer::timeout, this, &frmLogin::tick);
    tmrClock_->start();
    tmrTimer_ = new QTimer(this);
    tmrTimer_->setObjectName(QStringLiteral("tmrTimer"));
    tmrTimer_->setInterval(std::chrono::milliseconds(60000));
    connect(tmrTimer_, &QTimer::timeout, this, &frmLogin::idleTick);
}

void frmLogin::load() {
    loadFailed_ = !guarded(client_.context, u"frmLogin", u"Form_Load", false, [this] {
        client_.openHome();
        fillLists();
        return true;
    });
    if (loadFailed_) client_.closeConnections();
}

void frmLogin::greet() {
    if (loadFailed_) return;
    tick();
    warnOfOldRecords(client_.context, client_.HomeConnection);
    greetNewSite(client_.context, client_.HomeConnection);
}

bool frmLogin::ReConnect() {
    // The wait box lets the window work while a busy file is waited for.
    if (loadFailed_ || ending_ || connecting_) return false;
    const QScopedValueRollback connecting(connecting_, true);
    const Hourglass hourglass;
    const bool ready = guarded(client_.context, u"frmLogin", u"ReConnect", false, [this] {
        if (!client_.HomeConnection.isOpen()) {
            listsOpen_ = false;
            client_.openHome();
        }
        if (!listsOpen_) fillLists();
        return true;
    });
    if (!ready) return false;
    tmrTimer_->start();
    IdleTicks_ = 0;
    return true;
}

// Reads both lists anew.
void frmLogin::fillLists() {
    const QSignalBlocker quietSection(ui_->dcbSection);
    const QSignalBlocker quietStaff(ui_->dcbStaff);
    Connection& connection = client_.HomeConnection;
    refill(*ui_->dcbSection, loginSections(connection));
    refill(*ui_->dcbStaff, loginStaff(connection, ui_->dcbSection->boundText()));
    listsOpen_ = true;
    checkInput();
}

// Nobody is here: the database is left to others. The session goes on.
void frmLogin::letGo() {
    const QScopedValueRollback quiet(quietFocus_, true);
    if (!isMinimized()) ui_->txtClock->setFocus();
    client_.HomeConnection.close();
    listsOpen_ = false;
    tmrTimer_->stop();
}

void frmLogin::databaseChanged() {
    {
        const QSignalBlocker quietSection(ui_->dcbSection);
        ui_->dcbSection->clearEditText();
        ui_->dcbStaff->clearEditText();
    }
    guarded(client_.context, u"frmLogin", u"databaseChanged", [this] { fillLists(); });
    (void)endSession();
}

void frmLogin::tick() {
    if (isOccupied()) return;
    const Moment now = client_.context.clock.now();
    const Day today = dayOf(now);
    showTime(now);
    if (dayOfMonth(today) == LastDay_ || !ReConnect()) return;
    const auto name = WhichHoliday(client_.context, client_.HomeConnection, today);
    if (name) ui_->lblHoliday->setText(*name);
    LastDay_ = dayOfMonth(today);
}

void frmLogin::showTime(Moment now) {
    QPalette colours = ui_->txtClock->palette();
    colours.setColor(QPalette::Text, colourOf(dayOf(now)));
    ui_->txtClock->setPalette(colours);
    ui_->txtClock->setText(clockText(now));
}

// A screen that is open works on the connection: then nothing is let go.
void frmLogin::idleTick() {
    constexpr int idleAfter = 5;
    if (isOccupied() || openForms() > 1) return;
    if (++IdleTicks_ >= idleAfter) letGo();
}

bool frmLogin::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) leftForBox_ = isBoxUp();
    // Coming back from a message box is no new beginning: a failed connection would be reported without end.
    if (event->type() == QEvent::WindowActivate && !leftForBox_ && !isBoxUp() && openForms() == 1)
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
    if (openForms() > 1) {
        client_.context.prompts.exclaim(QStringLiteral("他のメニューが開いているので、全て閉じてから終了して下さい。"));
        return;
    }
    ending_ = true;
    tmrClock_->stop();
    tmrTimer_->stop();
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
    centreAcross();
    if (event->spontaneous()) ui_->txtClock->setFocus();
}

} // namespace kurbo
