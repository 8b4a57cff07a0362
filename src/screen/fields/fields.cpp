#include "screen/fields/fields.h"

#include "screen/fields/prefectures.h"

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

QLineEdit* editorOf(QWidget* field) {
    if (auto* const combo = qobject_cast<QComboBox*>(field)) return combo->lineEdit();
    return qobject_cast<QLineEdit*>(field);
}

void FillPrefectures(QComboBox& list, bool withAll) {
    list.clear();
    for (int code = withAll ? 0 : 1; code <= prefectureCount; ++code) list.addItem(PrefectureName(code), code);
}

void RefusePassword(Prompts& prompts, QLineEdit& box, const QString& text) {
    prompts.exclaim(QStringLiteral("不正なパスワードです。正しいパスワードを入力して下さい。"));
    box.setText(text);
}

} // namespace kurbo
