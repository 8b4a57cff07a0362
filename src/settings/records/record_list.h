#pragma once

#include "settings/records/record_fields.h"
#include "store/readers.h"

#include <array>

namespace kurbo {

// A kind of records that stand in a list in an order of their own, by their codes: the sections and the people.
struct RecordList {
    const char16_t* noun; // of one record
    RecordFields fields;
    ReservedRecord reserved;
    bool needsReserved; // the screen is of no use without the reserved record
    // Statements. The placeholder "?" is a code.
    const char16_t* list; // code, name and order of all records, in their order
    const char16_t* show;
    const char16_t* update; // the whole row
    const char16_t* orders; // of all rows of the table
    const char16_t* remove;
    std::array<const char16_t*, 3> uses; // each gives a row where the code is in use
    // Gives the entries for the fields that take one; none without such fields.
    QList<CodeName> (*choices)(Connection& connection);
    // Procedures as failures are reported.
    const char16_t* showName;
    const char16_t* updateName;
    const char16_t* removeName;
    const char16_t* printName;
};

// A record as it was shown, and as the person wants it.
struct RecordEdit {
    QString code; // "NEW" for a record to be made
    RecordTexts before;
    RecordTexts now;
};

// All of these throw. A record that another client has removed is a fault.

[[nodiscard]] QList<CodeName> recordChoices(Connection& connection, const RecordList& list);
[[nodiscard]] QList<CodeName> recordNames(Connection& connection, const RecordList& list);
[[nodiscard]] RecordTexts readRecord(Connection& connection, const RecordList& list, const QString& code);
[[nodiscard]] bool isUsedRecord(Connection& connection, const RecordList& list, const QString& code);
// Throws the complaint of the first rule that fails.
void checkRecord(Connection& connection, const RecordList& list, const RecordEdit& edit);
// Stores a checked record, a new one behind all others, and gives its code.
QString writeRecord(Connection& connection, const RecordList& list, const RecordEdit& edit);
// Checks anew that nobody uses it.
void removeRecord(Connection& connection, const RecordList& list, const QString& code);

enum class Direction { Up, Down };
// Lets a record change places with its neighbour; the reserved record and the ends of the list stay. Orders with gaps,
// as removed records leave them, are closed up.
void moveRecord(Connection& connection, const RecordList& list, const QString& code, Direction direction);
// The last order plus 1; 1 in an empty table.
[[nodiscard]] int nextOrder(Connection& connection, const RecordList& list);

} // namespace kurbo
