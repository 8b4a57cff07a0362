#include "settings/people/frmPassword.h"

#include "screen/fields/fields.h"
#include "screen/windows/show_now.h"
#include "store/access.h"
#include "ui_frmPassword.h"

#include <QEvent>

namespace kurbo {

frmPassword::frmPassword(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmPassword>()) {
    ui_->setupUi(this);
    setWindowFlag(Qt::Dialog);
    dress(QStringLiteral("パスワード変更"));
    for (QLineEdit* const box : {ui_->txtOldPassword, ui_->txtNewPassword, ui_->txtConfirm}) SetImeOpen(box, false);
    checkBoxes();
    // The window must not jump when the confirmation comes and goes.
    for (QWidget* const part : findChildren<QWidget*>()) part->ensurePolished();
    setMinimumHeight(sizeHint().height());
    connect(ui_->txtNewPassword, &QLineEdit::textChanged, this, &frmPassword::wantedChanged);
    connect(ui_->txtConfirm, &QLineEdit::textChanged, this,
            [this](const QString& text) { ui_->cmdOK->setEnabled(!text.trimmed().isEmpty()); });
    connect(ui_->txtConfirm, &QLineEdit::returnPressed, ui_->cmdOK, &QAbstractButton::click);
    onCommand(ui_->cmdOK, nullptr, [this] { acceptChange(); });
    connect(ui_->cmdCancel, &QAbstractButton::clicked, this, &QWidget::close);
    wantedChanged();
    ui_->cmdOK->setEnabled(false);
    placeInMiddle(this);
}

frmPassword::~frmPassword() {
    putAway();
}

void frmPassword::checkBoxes() {
    new LeaveCheck(
        ui_->txtOldPassword, [this] { return ui_->txtOldPassword->text().isEmpty() || isOldRight(); },
        [this] { RefusePassword(client_.context.prompts, *ui_->txtOldPassword, {}); });
    ui_->txtNewPassword->installEventFilter(this);
    checkOnLeaving(ui_->txtNewPassword, &passwordRefusal);
}

bool frmPassword::isOldRight() {
    return hasConnection() && guarded(client_.context, objectName(), u"IsPasswordOK", false, [this] {
               return isPasswordOf(client_.HomeConnection, client_.session.SessionStaff, ui_->txtOldPassword->text());
           });
}

// The click that moved the focus is let to its end first.
bool frmPassword::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->txtNewPassword && event->type() == QEvent::FocusIn && ui_->txtOldPassword->text().isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { askForOld(); }, Qt::QueuedConnection);
    return SettingsForm::eventFilter(watched, event);
}

void frmPassword::askForOld() {
    if (!isVisible() || !ui_->txtNewPassword->hasFocus()) return;
    ui_->txtOldPassword->setFocus();
    client_.context.prompts.exclaim(oldPasswordMissing());
}

void frmPassword::wantedChanged() {
    const bool typed = !ui_->txtNewPassword->text().trimmed().isEmpty();
    ui_->txtConfirm->clear();
    ui_->lblConfirm->setVisible(typed);
    ui_->txtConfirm->setVisible(typed);
}

void frmPassword::acceptChange() {
    const PasswordChange change{ui_->txtOldPassword->text(), ui_->txtNewPassword->text(), ui_->txtConfirm->text()};
    Connection& connection = client_.HomeConnection;
    const QString staff = client_.session.SessionStaff;
    std::optional<PasswordRefusal> refusal;
    stored_ = guarded(client_.context, objectName(), u"UpdatePassword", false, [&] {
        refusal = checkPasswordChange(connection, staff, change);
        if (!refusal) UpdatePassword(connection, staff, change.wanted);
        return !refusal.has_value();
    });
    if (stored_)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    else if (refusal)
        refuse(*refusal);
    else
        client_.context.prompts.exclaim(QStringLiteral("新しいパスワードの登録に失敗しました。"));
}

void frmPassword::refuse(const PasswordRefusal& refusal) {
    if (refusal.box == PasswordBox::Old && refusal.text.isEmpty())
        RefusePassword(client_.context.prompts, *ui_->txtOldPassword, {});
    else
        client_.context.prompts.exclaim(refusal.text);
    QLineEdit* const box = refusal.box == PasswordBox::Old      ? ui_->txtOldPassword
                           : refusal.box == PasswordBox::Wanted ? ui_->txtNewPassword
                                                                : ui_->txtConfirm;
    if (refusal.box == PasswordBox::Confirmation) box->clear();
    box->setFocus();
}

bool frmPassword::mayClose() {
    return stored_ || kurbo::mayDiscard(client_.context.prompts, !ui_->txtNewPassword->text().isEmpty(),
                                        QStringLiteral("パスワード"));
}

} // namespace kurbo
