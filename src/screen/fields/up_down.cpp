#include "screen/fields/up_down.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace kurbo {

UpDown::UpDown(QWidget* parent) : QWidget(parent) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto add = [column](QToolButton& button, Qt::ArrowType arrow) {
        constexpr int width = 24;
        constexpr int leastHeight = 12;
        button.setArrowType(arrow);
        button.setFocusPolicy(Qt::NoFocus);
        button.setFixedWidth(width);
        button.setMinimumHeight(leastHeight);
        button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        column->addWidget(&button);
    };
    // As high as the field beside it.
    constexpr int aroundText = 10;
    setFixedHeight(fontMetrics().height() + aroundText);
    add(up_, Qt::UpArrow);
    add(down_, Qt::DownArrow);
    connect(&up_, &QToolButton::clicked, this, &UpDown::UpClick);
    connect(&down_, &QToolButton::clicked, this, &UpDown::DownClick);
}

void UpDown::setBuddy(QWidget* field) {
    if (buddy_) buddy_->removeEventFilter(this);
    buddy_ = field;
    if (field) field->installEventFilter(this);
}

void UpDown::setRepeats(bool on) {
    up_.setAutoRepeat(on);
    down_.setAutoRepeat(on);
}

bool UpDown::eventFilter(QObject* watched, QEvent* event) {
    if (watched != buddy_ || event->type() != QEvent::KeyPress || !isEnabled()) return false;
    const auto* const key = static_cast<const QKeyEvent*>(event);
    const bool up = key->key() == Qt::Key_Up;
    if ((!up && key->key() != Qt::Key_Down) || (key->modifiers() & ~Qt::KeypadModifier)) return false;
    if (key->isAutoRepeat() && !repeats()) return true;
    if (up)
        Q_EMIT UpClick();
    else
        Q_EMIT DownClick();
    return true;
}

} // namespace kurbo
