#include "settings/settings_form.h"

#include "screen/fields/fields.h"
#include "screen/fields/masked_box.h"
#include "screen/grid/grid.h"
#include "screen/windows/hourglass.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QScopedValueRollback>

#include <utility>

namespace kurbo {

void SettingsForm::load() {
    const Hourglass hourglass;
    alive_ = hasConnection();
    alive_ = alive_ && guarded(client_.context, objectName(), u"Form_Load", false, [this] {
                 fill([this] { readAll(); });
                 return alive_;
             });
    if (!alive_) endWork();
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

bool SettingsForm::reload(QStringView procedure, const Command& show) {
    return guarded(client_.context, objectName(), procedure, false, [&] {
        fill(show);
        setChanged(false);
        return true;
    });
}

// Only closing and the help stay enabled.
void SettingsForm::endWork() {
    centralWidget()->setEnabled(false);
    const QStringList open{QStringLiteral("mnuClose"), QStringLiteral("mnuTopic"), QStringLiteral("mnuVersion")};
    for (QAction* const action : findChildren<QAction*>())
        if (!action->objectName().isEmpty() && !open.contains(action->objectName())) action->setEnabled(false);
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
    if (!store(check, write)) return false;
    setChanged(false);
    return true;
}

bool SettingsForm::store(const SettingsStep& check, const SettingsStep& write) {
    FieldPlace refused;
    const auto placedCheck = [&] {
        try {
            check.body();
        } catch (const FieldComplaint& complaint) {
            refused = complaint.place();
            throw;
        }
    };
    if (updateSettings(client_.context, objectName(), {check.procedure, placedCheck}, write)) return true;
    bringForward(refused);
    return false;
}

// The page that holds the field, and the field or its cell.
void SettingsForm::bringForward(const FieldPlace& place) {
    auto* const field = place.control.isEmpty() ? nullptr : findChild<QWidget*>(place.control);
    if (!field) return;
    for (QWidget* part = field; part->parentWidget(); part = part->parentWidget())
        if (auto* const pages = qobject_cast<QTabWidget*>(part->parentWidget()->parentWidget()))
            fill([&] { pages->setCurrentWidget(part); });
    field->setFocus();
    if (auto* const grid = qobject_cast<Grid*>(field))
        grid->Select(place.row, place.column);
    else if (QLineEdit* const editor = editorOf(field))
        SelectAllText(editor);
}

void SettingsForm::checkOnLeaving(QWidget* field, const std::function<QString(const QString&)>& refusal) {
    const auto refused = [field, refusal] {
        const auto* const masked = qobject_cast<MaskedBox*>(field);
        if (masked && masked->isBlank()) return QString();
        const QString text = masked ? masked->maskText() : editorOf(field)->text().trimmed();
        return text.isEmpty() ? QString() : refusal(text);
    };
    checks_.push_back({field, refused});
    new LeaveCheck(
        field, [refused] { return refused().isEmpty(); },
        [this, refused] { client_.context.prompts.exclaim(refused()); });
}

void SettingsForm::checkOnLeavingPages(QTabWidget& pages) {
    connect(&pages, &QTabWidget::currentChanged, this, [this, &pages, left = pages.currentIndex()](int index) mutable {
        const int last = std::exchange(left, index);
        if (!blnShowing_ && last != index) pageLeft(pages, last);
    });
}

// The page comes back with the field that is refused.
void SettingsForm::pageLeft(QTabWidget& pages, int left) {
    const QWidget* const page = pages.widget(left);
    for (const Check& check : checks_) {
        const QString refusal = page->isAncestorOf(check.field) ? check.refusal() : QString();
        if (refusal.isEmpty()) continue;
        fill([&] { pages.setCurrentIndex(left); });
        check.field->setFocus();
        SelectAllText(editorOf(check.field));
        return client_.context.prompts.exclaim(refusal);
    }
}

void SettingsForm::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (blnShowing_ || !finishEdits() || !mayClose()) return;
    event->accept();
    Q_EMIT closed();
}

} // namespace kurbo
