#include "screen/fields/data_combo.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QWheelEvent>
#include <QWindow>

namespace kurbo {
namespace {

// Sent to the window and not to the control: then the release goes to the same control.
void pressAgain(const QMouseEvent& press) {
    const QPointF place = press.globalPosition();
    const QWidget* const under = QApplication::widgetAt(place.toPoint());
    QWindow* const window = under ? under->window()->windowHandle() : nullptr;
    if (!window) return;
    QMouseEvent again(press.type(), window->mapFromGlobal(place), place, press.button(), press.buttons(),
                      press.modifiers());
    QCoreApplication::sendEvent(window, &again);
}

} // namespace

DataCombo::DataCombo(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    QCompleter* const matches = completer();
    matches->setCompletionMode(QCompleter::PopupCompletion);
    matches->setFilterMode(Qt::MatchContains);
    matches->setCaseSensitivity(Qt::CaseInsensitive);
    matches->popup()->setAttribute(Qt::WA_NoMouseReplay);
    matches->popup()->installEventFilter(this);
}

void DataCombo::setEntries(const QList<CodeName>& entries) {
    if (entries == entries_) return;
    entries_ = entries;
    const QString text = currentText();
    clear();
    for (const CodeName& entry : entries) addItem(entry.name, entry.code);
    setCurrentIndex(-1);
    setEditText(text);
}

QString DataCombo::boundText() const {
    const int entry = shownEntry();
    return entry < 0 ? currentText() : itemData(entry).toString();
}

void DataCombo::setBoundText(const QString& code) {
    setCurrentIndex(findData(code));
    if (currentIndex() < 0) setEditText(code);
}

// The wheel, meant to scroll the window, must not choose another entry.
void DataCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

// The list of what matches the typing opens by itself: the click that closes it also does what it was meant to.
bool DataCombo::eventFilter(QObject* watched, QEvent* event) {
    QAbstractItemView* const matches = completer()->popup();
    if (watched != matches || event->type() != QEvent::MouseButtonPress) return QComboBox::eventFilter(watched, event);
    const auto& press = static_cast<QMouseEvent&>(*event);
    if (matches->rect().contains(press.position().toPoint())) return false;
    matches->hide();
    pressAgain(press);
    return true;
}

// Two people can have one name: the entry that was chosen counts, not the first of that name.
int DataCombo::shownEntry() const {
    if (currentIndex() >= 0 && itemText(currentIndex()) == currentText()) return currentIndex();
    return findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
}

} // namespace kurbo
