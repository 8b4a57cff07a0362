#include "screen/data_combo.h"

#include <QCompleter>
#include <QLineEdit>
#include <QWheelEvent>

namespace kurbo {

DataCombo::DataCombo(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    QCompleter* const matches = completer();
    matches->setCompletionMode(QCompleter::PopupCompletion);
    matches->setFilterMode(Qt::MatchContains);
    matches->setCaseSensitivity(Qt::CaseInsensitive);
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

// A turn of the wheel over the window must not choose somebody else.
void DataCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

// Two people can have one name: the entry that was chosen counts, not the first of that name.
int DataCombo::shownEntry() const {
    if (currentIndex() >= 0 && itemText(currentIndex()) == currentText()) return currentIndex();
    return findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
}

} // namespace kurbo
