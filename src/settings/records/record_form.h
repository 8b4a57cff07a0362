#pragma once

#include "settings/records/record_fields.h"
#include "settings/settings_form.h"

namespace kurbo {

// A settings screen of one record: a table tells its fields, and the names of their controls.
class RecordForm : public SettingsForm {
    Q_OBJECT

  protected:
    RecordForm(Client& client, QWidget* parent, RecordFields fields);

    // Once the controls are there: watches those of the record, and tells the input method what they take.
    void dressRecord(const QString& title, const QString& subject);
    // A field is refused as soon as it is left.
    void checkFieldsOnLeaving();
    // For fields that take an entry of a list.
    void setChoices(const QList<CodeName>& choices);
    [[nodiscard]] const QList<CodeName>& choices() const { return choices_; }

    // Fills the controls as the program.
    void showTexts(const RecordTexts& texts);
    // What was shown last, before any change.
    [[nodiscard]] const RecordTexts& shownTexts() const { return shown_; }
    // What the controls hold.
    [[nodiscard]] RecordTexts collected() const;
    // The controls as a listing, below its title.
    [[nodiscard]] virtual QStringList listing() const { return fieldLines(fields_, collected()); }
    void print(const char16_t* procedure);

  private:
    [[nodiscard]] QWidget* controlOf(const RecordField& field) const;
    [[nodiscard]] QString textIn(const RecordField& field) const;
    void put(const RecordField& field, const QString& text) const;
    void dressField(const RecordField& field);

    RecordFields fields_;
    QString title_;
    QList<CodeName> choices_;
    RecordTexts shown_;
};

} // namespace kurbo
