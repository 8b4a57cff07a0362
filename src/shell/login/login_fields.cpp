#include "shell/login/login_fields.h"

#include "screen/fields/data_combo.h"
#include "screen/fields/fields.h"
#include "store/readers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace kurbo {
namespace {

// A text that is in no list stays as it was typed.
void refill(DataCombo& list, const QList<CodeName>& entries) {
    const QString code = list.boundText();
    const bool wasChosen = list.isInList();
    list.setEntries(entries);
    list.setBoundText(code);
    if (wasChosen && !list.isInList()) list.clearEditText();
}

} // namespace

LoginFields::LoginFields(Client& client, const LoginControls& controls) : client_(client), on_(controls) {
    connect(on_.section, &QComboBox::editTextChanged, this, &LoginFields::sectionChanged);
    connect(on_.section, &QComboBox::currentIndexChanged, this, &LoginFields::sectionChanged);
    connect(on_.staff, &QComboBox::editTextChanged, this, &LoginFields::checkInput);
    connect(on_.password, &QLineEdit::textChanged, this, &LoginFields::checkInput);
    connect(on_.password, &QLineEdit::returnPressed, on_.login, &QAbstractButton::click);
    connect(qApp, &QApplication::focusChanged, this, &LoginFields::focusMoved);
}

void LoginFields::readLists() {
    const QSignalBlocker quietSection(on_.section);
    const QSignalBlocker quietStaff(on_.staff);
    Connection& connection = client_.HomeConnection;
    refill(*on_.section, loginSections(connection));
    refill(*on_.staff, loginStaff(connection, on_.section->boundText()));
    current_ = true;
    checkInput();
}

void LoginFields::refreshLists() {
    if (!current_) readLists();
}

void LoginFields::beginAnew() {
    {
        const QSignalBlocker quietSection(on_.section);
        clearNames();
    }
    guarded(client_.context, u"frmLogin", u"databaseChanged", [this] { readLists(); });
}

Credentials LoginFields::credentials() const {
    return {on_.section->boundText(), on_.staff->boundText(), on_.password->text()};
}

void LoginFields::clearNames() {
    on_.section->clearEditText();
    on_.staff->clearEditText();
}

void LoginFields::clearPassword() {
    on_.password->clear();
}

void LoginFields::enterPassword() {
    clearPassword();
    on_.password->setFocus();
}

void LoginFields::enterStaff() {
    on_.staff->setFocus();
    SelectAllText(on_.staff->lineEdit());
}

void LoginFields::sectionChanged() {
    on_.staff->clearEditText();
    QList<CodeName> people;
    if (on_.section->isInList() && client_.HomeConnection.isOpen())
        guarded(client_.context, u"frmLogin", u"dcbSection_Change",
                [&] { people = loginStaff(client_.HomeConnection, on_.section->boundText()); });
    on_.staff->setEntries(people);
    checkInput();
}

void LoginFields::checkInput() {
    on_.login->setEnabled(CheckLoginInput(on_.section->currentText(), on_.staff->currentText(), on_.password->text()));
}

// Nothing at either end: the window itself won or lost the focus. The way over the menus is one move.
void LoginFields::focusMoved(QWidget* from, QWidget* to) {
    const QWidget* const window = on_.menus->window();
    if (quiet_ || !from || !to || from->window() != window || to->window() != window) return;
    if (to == on_.menus) {
        leftForMenus_ = from;
        return;
    }
    QWidget* const left = from == on_.menus ? leftForMenus_.data() : from;
    if (left == to) return;
    if (refuses(left))
        refuse(static_cast<DataCombo*>(left));
    else if (isField(to))
        enter(to);
}

void LoginFields::enter(QWidget* field) {
    if (field != on_.password) SetImeOpen(field, true);
    Q_EMIT entered();
}

bool LoginFields::isField(const QWidget* widget) const {
    return widget == on_.section || widget == on_.staff || widget == on_.password;
}

bool LoginFields::refuses(const QWidget* field) const {
    const auto* const combo = qobject_cast<const DataCombo*>(field);
    if (!combo || combo->currentText().isEmpty() || combo->isInList()) return false;
    return combo != on_.staff || !isAdminCode(combo->currentText());
}

// The click that moved the focus is let to its end first; where it was on the login button, it logs nobody in.
void LoginFields::refuse(DataCombo* field) {
    refusing_ = true;
    const auto goBack = [this, field] {
        backTo(field);
        client_.context.prompts.exclaim(QStringLiteral("不正な入力です。リストから選択して下さい。"));
        refusing_ = false;
    };
    QMetaObject::invokeMethod(this, goBack, Qt::QueuedConnection);
}

void LoginFields::backTo(DataCombo* field) {
    moveFocus(field);
    SelectAllText(field->lineEdit());
}

void LoginFields::backToRefused() {
    for (DataCombo* const field : {on_.staff, on_.section})
        if (refuses(field)) backTo(field);
}

void LoginFields::moveFocus(QWidget* to) {
    const QScopedValueRollback quiet(quiet_, true);
    to->setFocus();
}

} // namespace kurbo
