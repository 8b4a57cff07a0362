#include "screen/fields/fields.h"
#include "screen/windows/open_forms.h"
#include "shell/frmLogin.h"
#include "store/readers.h"
#include "ui_frmLogin.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>

namespace kurbo {

void frmLogin::connectFields() {
    connect(ui_->dcbSection, &QComboBox::editTextChanged, this, &frmLogin::sectionChanged);
    connect(ui_->dcbSection, &QComboBox::currentIndexChanged, this, &frmLogin::sectionChanged);
    connect(ui_->dcbStaff, &QComboBox::editTextChanged, this, &frmLogin::checkInput);
    connect(ui_->txtPassWord, &QLineEdit::textChanged, this, &frmLogin::checkInput);
    connect(ui_->txtPassWord, &QLineEdit::returnPressed, ui_->cmdLogin, &QAbstractButton::click);
    connect(qApp, &QApplication::focusChanged, this, &frmLogin::focusMoved);
    for (QWidget* button : {ui_->cmdEnter, ui_->cmdOut, ui_->cmdIn, ui_->cmdLeave}) button->installEventFilter(this);
}

// The Enter key of the password, held a little too long, must not punch.
bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) return true;
    return QMainWindow::eventFilter(watched, event);
}

void frmLogin::sectionChanged() {
    ui_->dcbStaff->clearEditText();
    QList<CodeName> people;
    if (ui_->dcbSection->isInList() && client_.HomeConnection.isOpen())
        guarded(client_.context, u"frmLogin", u"dcbSection_Change",
                [&] { people = loginStaff(client_.HomeConnection, ui_->dcbSection->boundText()); });
    ui_->dcbStaff->setEntries(people);
    checkInput();
}

void frmLogin::checkInput() {
    ui_->cmdLogin->setEnabled(
        CheckLoginInput(ui_->dcbSection->currentText(), ui_->dcbStaff->currentText(), ui_->txtPassWord->text()));
}

// Nothing at either end: the window itself won or lost the focus. The way over the menus is one move.
void frmLogin::focusMoved(QWidget* from, QWidget* to) {
    if (quietFocus_ || !from || !to || from->window() != this || to->window() != this) return;
    if (to == ui_->menus) {
        leftForMenus_ = from;
        return;
    }
    QWidget* const left = from == ui_->menus ? leftForMenus_.data() : from;
    if (left == to) return;
    if (refuses(left))
        refuse(static_cast<DataCombo*>(left));
    else if (isLoginField(to))
        enterLoginField(to);
}

bool frmLogin::isLoginField(const QWidget* field) const {
    return field == ui_->dcbSection || field == ui_->dcbStaff || field == ui_->txtPassWord;
}

bool frmLogin::refuses(const QWidget* field) const {
    const auto* const combo = qobject_cast<const DataCombo*>(field);
    if (!combo || combo->currentText().isEmpty() || combo->isInList()) return false;
    return combo != ui_->dcbStaff || !isAdminCode(combo->currentText());
}

// The click that moved the focus is let to its end first; where it was on the login button, it logs nobody in.
void frmLogin::refuse(DataCombo* field) {
    refusing_ = true;
    const auto goBack = [this, field] {
        backTo(field);
        client_.context.prompts.exclaim(QStringLiteral("不正な入力です。リストから選択して下さい。"));
        refusing_ = false;
    };
    QMetaObject::invokeMethod(this, goBack, Qt::QueuedConnection);
}

void frmLogin::backTo(DataCombo* field) {
    const QScopedValueRollback quiet(quietFocus_, true);
    field->setFocus();
    SelectAllText(field->lineEdit());
}

// A screen may ask: the click that moved the focus is let to its end first.
void frmLogin::enterLoginField(QWidget* field) {
    if (!ReConnect()) return;
    if (field != ui_->txtPassWord) SetImeOpen(field, true);
    const auto how = openForms() > 1 ? Qt::QueuedConnection : Qt::DirectConnection;
    if (isLoggedIn()) QMetaObject::invokeMethod(this, &frmLogin::beginAnew, how);
}

// Whoever touches a login field ends the session of the one before.
void frmLogin::beginAnew() {
    const bool admin = isAdminCode(client_.session.SessionStaff);
    if (!endSession()) {
        const QScopedValueRollback quiet(quietFocus_, true);
        ui_->txtClock->setFocus();
    } else if (admin) {
        ui_->dcbSection->clearEditText();
        ui_->dcbStaff->clearEditText();
    }
}

void frmLogin::logIn() {
    if (isLoggedIn() || refusing_) return;
    // Somebody may have left the lists since they were read.
    listsOpen_ = false;
    if (!ReConnect()) return;
    switch (login_.attempt({ui_->dcbSection->boundText(), ui_->dcbStaff->boundText(), ui_->txtPassWord->text()})) {
    case LoginResult::Open:
        return ShowTimeRecorder();
    case LoginResult::Thrown:
        close();
        return;
    case LoginResult::Refused:
        ui_->txtPassWord->clear();
        return ui_->txtPassWord->setFocus();
    case LoginResult::Stopped:
        for (DataCombo* const field : {ui_->dcbStaff, ui_->dcbSection})
            if (refuses(field)) backTo(field);
    }
}

// Every end of a session: its screens close with it, and who keeps one keeps the session. False when it goes on.
bool frmLogin::endSession() {
    if (!closeScreens()) return false;
    client_.session = {};
    HideTimeRecorder();
    ui_->txtPassWord->clear();
    return true;
}

// All but this window; false when a person wants to keep one, which comes to the front.
bool frmLogin::closeScreens() {
    QList<QPointer<QWidget>> screens;
    for (QWidget* const form : openScreens()) screens.append(form);
    for (const QPointer<QWidget>& form : screens) {
        if (!form || form == this || !form->isVisible() || form->close()) continue;
        bringToFront(*form);
        return false;
    }
    return true;
}

bool frmLogin::isLoggedIn() const {
    return !ui_->fraRecorder->isHidden();
}

void frmLogin::ShowTimeRecorder() {
    const Session& session = client_.session;
    const AccessRights& access = session.access;
    ui_->lblTimeDiff->setVisible(session.EnterDelay != Seconds{} || session.LeaveGain != Seconds{});
    ui_->lblPrompt->setText(QStringLiteral("ｱﾌﾟﾘｹｰｼｮﾝ終了時はﾛｸﾞｵﾌﾎﾞﾀﾝをｸﾘｯｸして下さい。"));
    for (QWidget* button : {ui_->cmdEnter, ui_->cmdOut, ui_->cmdIn, ui_->cmdLeave}) button->setEnabled(access.CanPunch);
    ui_->cmdKurbo->setEnabled(access.has(Right::ReadMyKurbo));
    ui_->cmdTotal->setEnabled(access.has(Right::ReadOtherKurbo));
    setMenusFor(access, true);
    showRecorder(true);
    QWidget* const next = access.CanPunch ? static_cast<QWidget*>(ui_->cmdEnter) : ui_->txtClock;
    next->setFocus();
}

void frmLogin::HideTimeRecorder() {
    if (ui_->fraRecorder->isAncestorOf(focusWidget())) ui_->txtClock->setFocus();
    ui_->lblPrompt->setText(QStringLiteral("所属･氏名･ﾊﾟｽﾜｰﾄﾞを入力し、ﾛｸﾞｲﾝして下さい。"));
    for (QWidget* button : {ui_->cmdEnter, ui_->cmdOut, ui_->cmdIn, ui_->cmdLeave, ui_->cmdKurbo, ui_->cmdTotal})
        button->setEnabled(false);
    setMenusFor({}, false);
    showRecorder(false);
}

void frmLogin::setMenusFor(const AccessRights& access, bool loggedIn) {
    ui_->mnuDB->setEnabled(loggedIn);
    ui_->mnuPassword->setEnabled(loggedIn);
    ui_->mnuDeleteDest->setEnabled(loggedIn && !access.IsAdmin);
    ui_->mnuAsign->menuAction()->setVisible(access.IsAdmin);
    ui_->mnuMaintainance->menuAction()->setVisible(access.IsAdmin);
}

void frmLogin::showRecorder(bool shown) {
    if (isLoggedIn() && !isMaximized()) tallHeight_ = height();
    ui_->fraRecorder->setVisible(shown);
    for (QLayout* inner : {static_cast<QLayout*>(ui_->bodyLayout), static_cast<QLayout*>(ui_->pageLayout), layout()})
        inner->activate();
    const int least = minimumSizeHint().height();
    fitHeight(shown ? std::max(least, tallHeight_) : least);
}

void frmLogin::fitHeight(int wanted) {
    if (isMaximized() || isFullScreen()) return;
    resize(width(), wanted);
    const int below = frameGeometry().bottom() - screen()->availableGeometry().bottom();
    if (below > 0) move(x(), std::max(screen()->availableGeometry().top(), y() - below));
}

// Where the tall form has its room too, so that the window need not jump.
void frmLogin::placeForBothForms() {
    constexpr int width = 780;
    const QSize tall = sizeHint() + QSize(0, ui_->fraRecorder->sizeHint().height());
    const QRect available = screen()->availableGeometry();
    resize(std::max(width, tall.width()), height());
    const int above = std::max(available.height() - tall.height(), 0) / 2;
    move(available.left() + (available.width() - this->width()) / 2, available.top() + above);
}

void frmLogin::centreAcross() {
    if (!isVisible() || isMaximized() || isFullScreen()) return;
    const QRect available = screen()->availableGeometry();
    move(available.left() + (available.width() - frameGeometry().width()) / 2, y());
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
    if (result == PunchResult::Stopped || !endSession()) return;
    ui_->dcbStaff->setFocus();
    SelectAllText(ui_->dcbStaff->lineEdit());
}

} // namespace kurbo
