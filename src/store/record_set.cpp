#include "store/record_set.h"

#include "store/dialect/criterion.h"
#include "store/engine_fault.h"
#include "store/schema.h"

#include <numeric>

namespace kurbo {

RecordSet::RecordSet(Connection& connection, const QString& statement, const Values& values)
    : connection_(connection), table_(connection.tableOf(statement)) {
    Rows rows = table_.isEmpty() ? connection.rows(statement, values) : connection.rowsWithId(statement, values);
    read(rows, !table_.isEmpty());
    showAll();
}

void RecordSet::read(Rows& rows, bool withId) {
    const int first = withId ? 1 : 0;
    for (int column = first; column < rows.columns(); ++column) {
        positions_.insert(rows.name(column).toLower(), fields_.size());
        fields_.append(rows.name(column));
    }
    while (rows.next()) {
        QList<Value> values;
        values.reserve(fields_.size());
        for (int column = first; column < rows.columns(); ++column) values.append(rows.value(column));
        records_.append({withId ? std::optional(rows.integer(0)) : std::nullopt, values, values});
    }
}

void RecordSet::showAll() {
    visible_.resize(records_.size());
    std::iota(visible_.begin(), visible_.end(), 0);
    at_ = 0;
}

bool RecordSet::moveFirst() {
    at_ = 0;
    return atRow();
}

bool RecordSet::moveLast() {
    at_ = visible_.size() - 1;
    return atRow();
}

bool RecordSet::moveNext() {
    at_ = qMin(at_ + 1, visible_.size());
    return atRow();
}

bool RecordSet::filter(const QString& criterion, const Values& values) {
    const Criterion wanted(criterion, values);
    showAll();
    QList<qsizetype> met;
    for (; atRow(); ++at_)
        if (wanted.holds([this](const QString& field) { return value(field); })) met.append(visible_[at_]);
    visible_ = met;
    return moveFirst();
}

void RecordSet::clearFilter() {
    showAll();
}

qsizetype RecordSet::indexOf(const QString& field) const {
    const auto position = positions_.constFind(field.toLower());
    if (position == positions_.cend()) throw storeFault(StoreError::NoTable, field);
    return *position;
}

const RecordSet::Record& RecordSet::here() const {
    if (!atRow()) throw storeFault(StoreError::RowGone);
    return records_[visible_[at_]];
}

Value RecordSet::value(const QString& field) const {
    return here().current[indexOf(field)];
}

void RecordSet::set(const QString& field, const Value& value) {
    (void)here();
    records_[visible_[at_]].current[indexOf(field)] = value;
}

void RecordSet::addNew() {
    const QList<Value> blank(fields_.size());
    visible_.append(records_.size());
    records_.append({{}, blank, blank});
    at_ = visible_.size() - 1;
}

void RecordSet::updateBatch() {
    if (table_.isEmpty()) throw storeFault(StoreError::ReadOnly);
    QList<Record> sent = records_;
    Transaction transaction(connection_);
    for (Record& record : sent) {
        if (!record.id)
            insert(record);
        else if (record.current != record.stored)
            update(record);
        record.stored = record.current;
    }
    transaction.commit();
    records_ = sent;
}

void RecordSet::addTerm(QString& terms, const QString& separator, const QString& term) {
    if (!terms.isEmpty()) terms += separator;
    terms += term;
}

// Fields that were never given a value keep the table's own default.
void RecordSet::insert(Record& record) {
    QString names;
    QString placeholders;
    Values values;
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        if (record.current[i].isNull()) continue;
        addTerm(names, QStringLiteral(", "), fields_[i]);
        addTerm(placeholders, QStringLiteral(", "), QStringLiteral("?"));
        values.append(record.current[i]);
    }
    const QString row = names.isEmpty()
                            ? QStringLiteral(" DEFAULT VALUES")
                            : QStringLiteral(" (") + names + QStringLiteral(") VALUES (") + placeholders + u')';
    connection_.execute(QStringLiteral("INSERT INTO ") + table_ + row, values);
    record.id = connection_.lastRowId();
}

// Found again by its number and its key: the number of a deleted row may go to another client's new row.
void RecordSet::update(const Record& record) {
    QString changes;
    Values values;
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        if (record.current[i] == record.stored[i]) continue;
        addTerm(changes, QStringLiteral(", "), fields_[i] + QStringLiteral(" = ?"));
        values.append(record.current[i]);
    }
    QString condition = QStringLiteral("rowid = ?");
    values.append(*record.id);
    for (const QString& key : keyOf(table_)) {
        const qsizetype position = positions_.value(key.toLower(), -1);
        if (position < 0) continue;
        addTerm(condition, QStringLiteral(" AND "), key + QStringLiteral(" IS ?"));
        values.append(record.stored[position]);
    }
    const QString statement =
        QStringLiteral("UPDATE ") + table_ + QStringLiteral(" SET ") + changes + QStringLiteral(" WHERE ") + condition;
    if (connection_.execute(statement, values) == 0) throw storeFault(StoreError::RowGone);
}

} // namespace kurbo
