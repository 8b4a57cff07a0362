#include "settings/records/record_form.h"

#include "screen/fields/data_combo.h"
#include "screen/fields/fields.h"
#include "screen/fields/masked_box.h"
#include "settings/listing.h"

#include <QCheckBox>
#include <QRadioButton>

namespace kurbo {
namespace {

void showText(QComboBox& combo, const QString& text) {
    combo.setCurrentIndex(combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    combo.setEditText(text);
}

} // namespace

RecordForm::RecordForm(Client& client, QWidget* parent, RecordFields fields)
    : SettingsForm(client, parent), fields_(fields) {}

void RecordForm::dressRecord(const QString& title, const QString& subject) {
    dress(title);
    setSubject(subject);
    title_ = title;
    for (const RecordField& field : fields_) dressField(field);
    watch(*centralWidget());
}

void RecordForm::dressField(const RecordField& field) {
    QWidget* const control = controlOf(field);
    if (editorOf(control)) SetImeOpen(control, field.japanese);
    if (field.kind != FieldKind::Prefecture) return;
    auto* const list = qobject_cast<QComboBox*>(control);
    FillPrefectures(*list, field.limit == 0);
    list->setCurrentIndex(-1);
}

void RecordForm::checkFieldsOnLeaving() {
    for (const RecordField& field : fields_)
        if (editorOf(controlOf(field)))
            checkOnLeaving(controlOf(field), [this, &field](const QString& /*text*/) {
                return refusalOnLeaving(field, textIn(field).trimmed(), codesOf(choices_));
            });
}

void RecordForm::setChoices(const QList<CodeName>& choices) {
    choices_ = choices;
    for (const RecordField& field : fields_)
        if (field.kind == FieldKind::List) qobject_cast<DataCombo*>(controlOf(field))->setEntries(choices);
}

// An option has two buttons; it is read by that of 1.
QWidget* RecordForm::controlOf(const RecordField& field) const {
    const QString name = QString::fromUtf16(field.control);
    return findChild<QWidget*>(field.kind == FieldKind::Option ? name + QStringLiteral("_1") : name);
}

QString RecordForm::textIn(const RecordField& field) const {
    const QWidget* const control = controlOf(field);
    if (const auto* const button = qobject_cast<const QAbstractButton*>(control)) {
        const QString off = field.kind == FieldKind::Option ? QStringLiteral("0") : QString();
        return button->isChecked() ? QStringLiteral("1") : off;
    }
    if (const auto* const box = qobject_cast<const MaskedBox*>(control))
        return box->isBlank() ? QString() : box->maskText();
    if (const auto* const combo = qobject_cast<const DataCombo*>(control))
        return field.kind == FieldKind::List ? combo->boundText() : combo->currentText();
    return qobject_cast<const QLineEdit*>(control)->text();
}

void RecordForm::put(const RecordField& field, const QString& text) const {
    QWidget* const control = controlOf(field);
    if (field.kind == FieldKind::Option && text != u"1")
        findChild<QRadioButton*>(QString::fromUtf16(field.control) + QStringLiteral("_0"))->setChecked(true);
    else if (auto* const button = qobject_cast<QAbstractButton*>(control))
        button->setChecked(!text.isEmpty());
    else if (auto* const combo = qobject_cast<DataCombo*>(control); combo && field.kind == FieldKind::List)
        combo->setBoundText(text);
    else if (combo)
        showText(*combo, text);
    else
        qobject_cast<QLineEdit*>(control)->setText(text);
}

// A text that is too long for its box is seen from its beginning.
void RecordForm::showTexts(const RecordTexts& texts) {
    shown_ = texts;
    fill([&] {
        for (std::size_t i = 0; i < fields_.size(); ++i) put(fields_[i], texts[static_cast<qsizetype>(i)]);
    });
    for (const RecordField& field : fields_)
        if (QLineEdit* const editor = editorOf(controlOf(field))) editor->setCursorPosition(0);
}

RecordTexts RecordForm::collected() const {
    RecordTexts texts;
    for (const RecordField& field : fields_) texts.append(textIn(field));
    return texts;
}

void RecordForm::print(const char16_t* procedure) {
    showListing(client_.context, objectName(), procedure,
                QStringList(listingTitle(title_, client_.context.clock.today())) + listing());
}

} // namespace kurbo
