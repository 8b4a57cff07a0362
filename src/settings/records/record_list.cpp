#include "settings/records/record_list.h"

#include "base/failure.h"
#include "store/engine_fault.h"
#include "store/text_order.h"

#include <algorithm>

namespace kurbo {
namespace {

// Of the list's columns.
constexpr int codeColumn = 0;
constexpr int nameColumn = 1;

QString orderField() {
    return QStringLiteral("F_Order");
}

QString text(const char16_t* words) {
    return QString::fromUtf16(words);
}

const RecordField& fieldOf(const RecordList& list, FieldKind kind) {
    return *std::ranges::find(list.fields, kind, &RecordField::kind);
}

QString typed(const RecordList& list, const RecordEdit& edit, FieldKind kind) {
    return edit.now[fieldAt(list.fields, fieldOf(list, kind).name)].trimmed();
}

// The record set of the list, looked through for a text that a record must not repeat.
void checkUnique(RecordSet& records, const RecordField& field, const QString& typed) {
    if (!records.filter(text(field.name) + QStringLiteral(" = ?"), {typed})) return records.clearFilter();
    const QString subject = text(field.subject);
    throw Complaint(lines(subject + QStringLiteral("を変更して下さい。"),
                          QStringLiteral("同じ%1が既に登録されています。").arg(subject)));
}

void checkRename(Connection& connection, const RecordList& list, const QString& code) {
    if (!isUsedRecord(connection, list, code)) return;
    const QString subject = text(fieldOf(list, FieldKind::Code).subject);
    throw Complaint(lines(QStringLiteral("表示されている%1の%2は他のテーブルで使用されているため変更できません。")
                              .arg(text(list.noun), subject),
                          subject + QStringLiteral("を元に戻すか、変更したデータを破棄して下さい。")));
}

// A new record must differ from all others in name and code. One that has been stored may take another's name; its own
// code in other letters is no other code.
void checkAgainstOthers(Connection& connection, const RecordList& list, const RecordEdit& edit) {
    const QString code = typed(list, edit, FieldKind::Code);
    RecordSet records(connection, text(list.list));
    if (edit.code == newCode()) {
        checkUnique(records, fieldOf(list, FieldKind::Name), typed(list, edit, FieldKind::Name));
        checkUnique(records, fieldOf(list, FieldKind::Code), code);
    } else if (code != edit.code) {
        checkRename(connection, list, edit.code);
        if (compareText(code, edit.code) != 0) checkUnique(records, fieldOf(list, FieldKind::Code), code);
    }
}

// The codes of the records that can be moved, in their order.
QStringList movableCodes(RecordSet& records, const QString& codeField) {
    QStringList codes;
    for (bool there = records.moveFirst(); there; there = records.moveNext())
        if (const QString code = records.value(codeField).text(); code != newCode()) codes.append(code);
    return codes;
}

void writeOrders(RecordSet& records, const QString& codeField, const QStringList& codes) {
    QHash<QString, int> orders;
    for (const QString& code : codes) orders.insert(code, static_cast<int>(orders.size()) + 1);
    for (bool there = records.moveFirst(); there; there = records.moveNext())
        if (const int order = orders.value(records.value(codeField).text()); order > 0)
            records.set(orderField(), order);
    records.updateBatch();
}

} // namespace

QList<CodeName> recordChoices(Connection& connection, const RecordList& list) {
    return list.choices ? list.choices(connection) : QList<CodeName>();
}

QList<CodeName> recordNames(Connection& connection, const RecordList& list) {
    QList<CodeName> names;
    Rows rows = connection.rows(text(list.list));
    while (rows.next()) names.append({rows.text(codeColumn), rows.text(nameColumn)});
    return names;
}

RecordTexts readRecord(Connection& connection, const RecordList& list, const QString& code) {
    const RecordSet row(connection, text(list.show), {code});
    if (!row.atRow()) throw storeFault(StoreError::RowGone);
    RecordTexts texts = readFields(list.fields, row);
    for (qsizetype i = 0; code == newCode() && i < texts.size(); ++i)
        if (const char16_t* const preset = list.fields[static_cast<std::size_t>(i)].preset;
            preset && texts[i].isEmpty())
            texts[i] = text(preset);
    return texts;
}

bool isUsedRecord(Connection& connection, const RecordList& list, const QString& code) {
    return std::ranges::any_of(
        list.uses, [&](const char16_t* statement) { return statement && connection.hasRow(text(statement), {code}); });
}

void checkRecord(Connection& connection, const RecordList& list, const RecordEdit& edit) {
    const Reading reading(connection);
    checkAgainstOthers(connection, list, edit);
    checkFields(list.fields, edit.now, {codesOf(recordChoices(connection, list)), &list.reserved});
}

QString writeRecord(Connection& connection, const RecordList& list, const RecordEdit& edit) {
    Transaction transaction(connection);
    // Another client may have been here since the check.
    checkRecord(connection, list, edit);
    const bool isNew = edit.code == newCode();
    RecordSet row(connection, text(list.update), {edit.code});
    if (isNew) {
        row.addNew();
        row.set(orderField(), nextOrder(connection, list));
    }
    writeFields(list.fields, isNew ? RecordTexts() : edit.before, edit.now, row);
    row.updateBatch();
    const QString code = row.value(text(fieldOf(list, FieldKind::Code).name)).text();
    transaction.commit();
    return code;
}

void removeRecord(Connection& connection, const RecordList& list, const QString& code) {
    Transaction transaction(connection);
    if (isUsedRecord(connection, list, code))
        throw Complaint(QStringLiteral("表示されている%1は使用されているため削除できません。").arg(text(list.noun)));
    if (connection.execute(text(list.remove), {code}) == 0) throw storeFault(StoreError::RowGone);
    transaction.commit();
}

void moveRecord(Connection& connection, const RecordList& list, const QString& code, Direction direction) {
    if (code == newCode()) return;
    const QString codeField = text(fieldOf(list, FieldKind::Code).name);
    Transaction transaction(connection);
    RecordSet records(connection, text(list.list));
    QStringList codes = movableCodes(records, codeField);
    const qsizetype from = codes.indexOf(code);
    if (from < 0) throw storeFault(StoreError::RowGone);
    const qsizetype to = direction == Direction::Up ? from - 1 : from + 1;
    if (to < 0 || to >= codes.size()) return;
    codes.swapItemsAt(from, to);
    writeOrders(records, codeField, codes);
    transaction.commit();
}

int nextOrder(Connection& connection, const RecordList& list) {
    const auto last = connection.lastValue(text(list.orders));
    return last ? static_cast<int>(last->integer()) + 1 : 1;
}

} // namespace kurbo
