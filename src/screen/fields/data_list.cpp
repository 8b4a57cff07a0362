#include "screen/fields/data_list.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace kurbo {

DataList::DataList(QWidget* parent) : QListWidget(parent) {
    setTabKeyNavigation(false);
    connect(this, &QListWidget::currentRowChanged, this, [this] {
        if (!filling_) QMetaObject::invokeMethod(this, &DataList::chosen, Qt::QueuedConnection);
    });
}

void DataList::setEntries(const QList<CodeName>& entries) {
    if (entries_ == entries) return;
    const QScopedValueRollback filling(filling_, true);
    const QString code = boundText();
    clear();
    entries_ = entries;
    for (const CodeName& entry : entries) addItem(entry.name);
    setBoundText(code);
}

QString DataList::boundText() const {
    return currentRow() < 0 ? QString() : entries_.at(currentRow()).code;
}

QString DataList::text() const {
    return currentRow() < 0 ? QString() : entries_.at(currentRow()).name;
}

void DataList::setBoundText(const QString& code) {
    const QScopedValueRollback filling(filling_, true);
    const auto found = std::ranges::find(entries_, code, &CodeName::code);
    setCurrentRow(found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin()));
}

} // namespace kurbo
