#include "screen/fields.h"

#include <QGuiApplication>
#include <QInputMethod>

namespace kurbo {
namespace {

void setHints(QWidget* field, bool open) {
    constexpr Qt::InputMethodHints closed = Qt::ImhPreferLatin | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
    const Qt::InputMethodHints hints = field->inputMethodHints();
    field->setInputMethodHints(open ? hints & ~closed : hints | closed);
}

} // namespace

void SetImeOpen(QWidget* field, bool open) {
    setHints(field, open);
    const auto editors = field->findChildren<QLineEdit*>();
    for (QLineEdit* editor : editors) setHints(editor, open);
    QGuiApplication::inputMethod()->update(Qt::ImHints);
}

void SelectAllText(QLineEdit* field) {
    field->setSelection(0, static_cast<int>(field->text().size()));
}

} // namespace kurbo
