#pragma once

#include "store/readers.h"
#include "store/record_set.h"

#include <QStringList>

#include <span>

namespace kurbo {

// What may stand in a field. Name and Code are those of a record that stands in a list.
enum class FieldKind { Text, SingleByte, Name, Code, Date, Prefecture, List, Option, Flag };

// One field of a record, with all that the store, the screen, the listing and the messages call it.
struct RecordField {
    const char16_t* name = u"";
    const char16_t* control = u"";
    const char16_t* label = u""; // in the listing
    FieldKind kind = FieldKind::Text;
    int limit = 0; // Text and Name: bytes; SingleByte and Code: characters; Prefecture: the first code of its list
    bool japanese = false; // the keyboard's input method is on
    bool required = false;
    const char16_t* subject = u""; // of messages
    // What would be right, and the same in the check before an update, where the words aren't those of the kind.
    const char16_t* demand = nullptr;
    const char16_t* demandOnUpdate = nullptr;
    const char16_t* preset = nullptr; // what most new records have there
    const char16_t* zeroWord = u"";   // of an option
    const char16_t* oneWord = u"";
};
using RecordFields = std::span<const RecordField>;

// What the controls of a record hold, in the order of its fields: the text of a box, "yyyy/mm/dd" or nothing, the name
// of a prefecture, the code of a list's entry, the number of an option, "1" of a set flag.
using RecordTexts = QStringList;

// The names and codes that no record of a list may take. "NEW" stands for a record that is yet to be made.
struct ReservedRecord {
    const char16_t* name;
    const char16_t* nameWord; // what the refusal calls it
    const char16_t* otherCode;
};
[[nodiscard]] QString newCode();

[[nodiscard]] QStringList codesOf(const QList<CodeName>& entries);

// What the texts are held against: the codes of the fields that take a list's entry, and the reserved record.
struct FieldChecks {
    QStringList choices;
    const ReservedRecord* reserved = nullptr;
};

// Why a field can't be left with the text; empty when it can. An empty text always can.
[[nodiscard]] QString refusalOnLeaving(const RecordField& field, const QString& text, const QStringList& choices);
// Throws the complaint of the first field that is wrong.
void checkFields(RecordFields fields, const RecordTexts& texts, const FieldChecks& checks);

// The row at hand, or blanks.
[[nodiscard]] RecordTexts readFields(RecordFields fields, const RecordSet& row);
// Into the row at hand, for its updateBatch(). What somebody else has changed since it was read as `before`, and this
// person has not, stays; an empty `before` writes all.
void writeFields(RecordFields fields, const RecordTexts& before, const RecordTexts& now, RecordSet& row);

// Where a field stands; -1 without it.
[[nodiscard]] int fieldAt(RecordFields fields, QStringView name);
// A line for each field, in their order; `notes` are put behind the texts of the fields that they are named after.
[[nodiscard]] QStringList fieldLines(RecordFields fields, const RecordTexts& texts,
                                     const QHash<QString, QString>& notes = {});

} // namespace kurbo
