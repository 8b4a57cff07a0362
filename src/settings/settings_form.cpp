#include "settings/settings_form.h"

#include "screen/fields.h"
#include "screen/hourglass.h"
#include "screen/masked_box.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QScopedValueRollback>

namespace kurbo {

void SettingsForm::load() {
    const Hourglass hourglass;
    alive_ = hasConnection();
    alive_ = alive_ && guarded(client_.context, objectName(), u"Form_Load", false, [this] {
                 fill([this] { readAll(); });
                 return alive_;
             });
    if (centralWidget()) centralWidget()->setEnabled(alive_);
    setChanged(false);
}

// Settings lie in the home file, also while a card or the totals show another site's.
bool SettingsForm::hasConnection() {
    return client_.hasHome(objectName());
}

void SettingsForm::watch(QWidget& part) {
    const auto onChange = [this] { changedByPerson(); };
    for (QLineEdit* const box : part.findChildren<QLineEdit*>()) connect(box, &QLineEdit::textChanged, this, onChange);
    for (QComboBox* const combo : part.findChildren<QComboBox*>())
        connect(combo, &QComboBox::currentIndexChanged, this, onChange);
    for (QAbstractButton* const button : part.findChildren<QAbstractButton*>())
        if (button->isCheckable()) connect(button, &QAbstractButton::toggled, this, onChange);
}

void SettingsForm::fill(const Command& show) {
    const QScopedValueRollback showing(blnShowing_, true);
    show();
}

void SettingsForm::reload(const Command& show) {
    guarded(client_.context, objectName(), u"Show", [&] {
        fill(show);
        setChanged(false);
    });
}

void SettingsForm::changedByPerson() {
    if (blnShowing_) return;
    fieldChanged();
    setChanged(true);
}

void SettingsForm::setChanged(bool changed) {
    changed_ = changed;
    showState();
}

void SettingsForm::showState() {
    if (auto* const cmdUpdate = findChild<QAbstractButton*>(QStringLiteral("cmdUpdate")))
        cmdUpdate->setEnabled(alive_ && changed_);
    if (auto* const mnuUpdate = findChild<QAction*>(QStringLiteral("mnuUpdate")))
        mnuUpdate->setEnabled(alive_ && changed_);
}

bool SettingsForm::mayDiscard(const QString& subject) const {
    return kurbo::mayDiscard(client_.context.prompts, changed_, subject);
}

bool SettingsForm::update(const SettingsStep& check, const SettingsStep& write) {
    if (!updateSettings(client_.context, objectName(), check, write)) return false;
    setChanged(false);
    return true;
}

void SettingsForm::checkOnLeaving(QWidget* field, const std::function<QString(const QString&)>& refusal) {
    const auto refused = [field, refusal] {
        const auto* const masked = qobject_cast<MaskedBox*>(field);
        if (masked && masked->isBlank()) return QString();
        const QString text = masked ? masked->maskText() : editorOf(field)->text().trimmed();
        return text.isEmpty() ? QString() : refusal(text);
    };
    new LeaveCheck(
        field, [refused] { return refused().isEmpty(); },
        [this, refused] { client_.context.prompts.exclaim(refused()); });
}

void SettingsForm::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (blnShowing_ || !finishEdits() || !mayClose()) return;
    event->accept();
    Q_EMIT closed();
}

} // namespace kurbo
