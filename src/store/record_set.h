#pragma once

#include "store/connection.h"
#include "store/value.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace kurbo {

// The rows of a statement, held in memory to be looked through and changed: for the few rows that a screen edits. What
// the engine reads in bulk goes through Rows. Field names are found without regard to case.
class RecordSet final {
  public:
    // Reads all rows and stands on the first. Rows of a plain SELECT over one table can be written back.
    RecordSet(Connection& connection, const QString& statement, const Values& values = {});

    // Rows that the filter lets through.
    [[nodiscard]] qsizetype size() const { return visible_.size(); }
    [[nodiscard]] bool isEmpty() const { return visible_.isEmpty(); }
    // False behind the last row.
    [[nodiscard]] bool atRow() const { return at_ >= 0 && at_ < visible_.size(); }

    // Each gives atRow().
    bool moveFirst();
    bool moveLast();
    bool moveNext();
    // Shows only the rows that meet the criterion, and stands on the first of them.
    bool filter(const QString& criterion, const Values& values = {});
    void clearFilter();

    // Of the row at hand; a fault where there is none, or no such field.
    [[nodiscard]] Value value(const QString& field) const;
    void set(const QString& field, const Value& value);
    // Adds a row with all fields Null, and stands on it.
    void addNew();
    // Sends all changed and added rows, all or none. A row that another client has deleted is a fault.
    void updateBatch();

  private:
    struct Record {
        std::optional<std::int64_t> id; // none: not yet in the store
        QList<Value> stored;
        QList<Value> current;
    };

    [[nodiscard]] qsizetype indexOf(const QString& field) const;
    [[nodiscard]] const Record& here() const;
    void read(Rows& rows, bool withId);
    void showAll();
    void insert(Record& record);
    void update(const Record& record);
    static void addTerm(QString& terms, const QString& separator, const QString& term);

    Connection& connection_;
    QString table_;
    QStringList fields_;
    QHash<QString, qsizetype> positions_;
    QList<Record> records_;
    QList<qsizetype> visible_;
    qsizetype at_ = 0;
};

} // namespace kurbo
