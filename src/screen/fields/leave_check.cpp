#include "screen/fields/leave_check.h"

#include "screen/fields/fields.h"

#include <QApplication>
#include <QFocusEvent>

#include <utility>

namespace kurbo {
namespace {

bool isPersons(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

bool isOfMouse(const QEvent* event) {
    return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
           event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::Wheel;
}

bool leadsOut(const QWidget* next, Qt::FocusReason reason) {
    const bool byTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    return !next || next->objectName() == u"cmdCancel" || (next->objectName() == u"cmdDB" && !byTab);
}

} // namespace

LeaveCheck::LeaveCheck(QWidget* field, std::function<bool()> isGood, std::function<void()> refuse)
    : QObject(field), field_(field), isGood_(std::move(isGood)), refuse_(std::move(refuse)) {
    field->installEventFilter(this);
}

// While the focus is on its way back, all of the application is watched for the click that took it.
bool LeaveCheck::eventFilter(QObject* watched, QEvent* event) {
    if (goingBack_) return watched->isWidgetType() && isOfMouse(event);
    if (watched == field_ && event->type() == QEvent::FocusOut) left(static_cast<QFocusEvent*>(event)->reason());
    return false;
}

// Also hiding and disabling a field move the focus on as the Tab key does.
void LeaveCheck::left(Qt::FocusReason reason) {
    if (!isPersons(reason) || !field_->isVisible() || !field_->isEnabled()) return;
    if (leadsOut(QApplication::focusWidget(), reason) || isGood_()) return;
    goingBack_ = true;
    qApp->installEventFilter(this);
    QMetaObject::invokeMethod(
        this, [this] { goBack(); }, Qt::QueuedConnection);
}

void LeaveCheck::goBack() {
    qApp->removeEventFilter(this);
    goingBack_ = false;
    if (!field_->isVisible() || !field_->isEnabled() || !field_->isActiveWindow()) return;
    field_->setFocus();
    if (auto* const editor = editorOf(field_)) SelectAllText(editor);
    refuse_();
}

} // namespace kurbo
